#include "flow/nodes/WMRNode.h"

#include "flow/ComboSlider.h"
#include "flow/DirectionsWidget.h"
#include "flow/nodes/WatermarkRenderer.h"
#include "flow/ParameterSpinBox.h"
#include "flow/SliderParameter.h"
#include <QMWidgets/ColorWidget.h>
#include <QMWidgets/FileDialog.h>
#include <QMWidgets/LiteralText.h>
#include <QMWidgets/MMessageBox.h>

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using QMWidgets::ColorWidget;

namespace
{

constexpr SliderParameter kSliders[] = {
    {WMRXml::kSize, QT_TRANSLATE_NOOP("WMRNode", "Size:"), 1, 100, 20, 0, 60,
     WMRParams::kSizeFallback, "%"},
    {WMRXml::kTransparency, QT_TRANSLATE_NOOP("WMRNode", "Transparency:"), 0, 100, 20, 0, 25,
     WMRParams::kTransparencyFallback, ""},
};
constexpr const SliderParameter& kSize = kSliders[0];
constexpr const SliderParameter& kTransparency = kSliders[1];

/// Width of the wide fields. Font names can be long, and both kinds of mark share the page.
constexpr int kFieldWidth = 204;
constexpr int kPictureButton = 24;
constexpr int kSliderWidth = 200;
constexpr int kRowHeight = 27;
constexpr int kSwatchRowHeight = 31;
constexpr int kFirstSwatchRow = 5;

void setUpPictureButton(QPushButton* button, const char* objectName, const QString& name)
{
    button->setObjectName(QLatin1String(objectName));
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFlat(true);
    button->setFixedSize(kPictureButton, kPictureButton);
}

void setUpSwatch(ColorWidget* swatch, const QColor& color, const QString& name)
{
    swatch->setFixedSize(64, 28);
    swatch->setColor(color);
    // Its name is the colour; this tells the two of them apart.
    swatch->setAccessibleDescription(name);
}

QHBoxLayout* tightRow(std::initializer_list<QWidget*> widgets)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (QWidget* widget : widgets) {
        row->addWidget(widget);
    }
    return row;
}

/// Adds a row whose field is a layout, or a widget that takes no focus itself.
template <class Field>
void addRow(QFormLayout* form, const QString& caption, Field* field, QWidget* buddy)
{
    form->addRow(caption, field);
    static_cast<QLabel*>(form->labelForField(field))->setBuddy(buddy);
}

} // namespace

WMRNode::WMRNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent),
      m_kind(new QComboBox),
      m_textEdit(new QLineEdit(QStringLiteral("Watermark"))),
      m_position(new DirectionsWidget(nullptr)),
      m_size(makeSlider(kSize)),
      m_textColor(new ColorWidget),
      m_transparency(makeSlider(kTransparency)),
      m_backgroundColor(new ColorWidget),
      m_backgroundCheck(new QCheckBox),
      m_backgroundRow(new QWidget),
      m_fontBox(new QFontComboBox),
      m_kindForm(new QFormLayout),
      m_boldButton(new QPushButton),
      m_italicButton(new QPushButton),
      m_underlinedButton(new QPushButton),
      m_logo(WMRXml::defaultMark()),
      m_imageNameEdit(new QLineEdit(WMRXml::defaultMarkName())),
      m_browseButton(new QPushButton),
      m_logoRow(tightRow({m_imageNameEdit, m_browseButton})),
      m_expandButton(new QPushButton),
      m_xOffset(new ParameterSpinBox(this)),
      m_yOffset(new ParameterSpinBox(this)),
      m_offsetBox(new QGroupBox),
      m_settingsForm(new QFormLayout),
      m_positionRow(tightRow({m_position, m_offsetBox})),
      m_textRow(tightRow({m_textEdit, m_boldButton, m_italicButton, m_underlinedButton}))
{
    setNodeIcon(name);
    setUpTextControls();
    setUpLogoControls();
    setUpPlacementControls();
    layOut();
    bindControls();
    connectControls();

    setPlacementEnabled(!m_expandButton->isChecked());
    emit parametersChanged();
    slotModeChanged(m_kind->currentIndex());
}

void WMRNode::setUpTextControls()
{
    setUpPictureButton(m_boldButton, "BoldButton", tr("Bold"));
    setUpPictureButton(m_italicButton, "ItalicButton", tr("Italic"));
    setUpPictureButton(m_underlinedButton, "UnderlinedButton", tr("Underlined"));
    for (QPushButton* button : {m_boldButton, m_italicButton, m_underlinedButton}) {
        button->setCheckable(true);
    }
    m_textEdit->setFixedWidth(kFieldWidth - 3 * kPictureButton);
    m_fontBox->setFixedWidth(kFieldWidth);
    // The box shows the family that was found for the default font, but tells the one asked for.
    m_fontBox->setCurrentFont(WMRXml::readFont(m_fontBox->currentText()));
    setUpSwatch(m_textColor, Qt::white, tr("Text color"));
    setUpSwatch(m_backgroundColor, Qt::black, tr("Background"));
    m_backgroundCheck->setChecked(true);
    m_backgroundCheck->setAccessibleName(tr("Draw the background"));
    m_backgroundCheck->setToolTip(m_backgroundCheck->accessibleName());
}

void WMRNode::setUpLogoControls()
{
    m_kind->setFixedWidth(kFieldWidth);
    m_kind->addItem(tr("Text"), WMRParams::kTextMode);
    m_kind->addItem(tr("Image"), WMRParams::kImageMode);
    setUpPictureButton(m_browseButton, "WMRBrowseButton", tr("Open the watermark file"));
    setUpPictureButton(m_expandButton, "WMRShrinkButton", tr("Expand"));
    m_expandButton->setCheckable(true);
    m_imageNameEdit->setFixedWidth(kFieldWidth - kPictureButton);
}

void WMRNode::setUpPlacementControls()
{
    for (QSpinBox* offset : {m_xOffset, m_yOffset}) {
        offset->setRange(-33, 33);
        offset->setValue(0);
    }
    m_xOffset->setAccessibleName(tr("Horizontal offset"));
    m_yOffset->setAccessibleName(tr("Vertical offset"));
    auto* form = new QFormLayout(m_offsetBox);
    form->setContentsMargins(0, 0, 0, 0);
    addRow(form, tr("x:"), tightRow({m_xOffset, new QLabel(QStringLiteral("%"))}), m_xOffset);
    addRow(form, tr("y:"), tightRow({m_yOffset, new QLabel(QStringLiteral("%"))}), m_yOffset);
}

void WMRNode::layOut()
{
    auto* background = new QHBoxLayout(m_backgroundRow);
    background->setContentsMargins(0, 0, 0, 0);
    background->addWidget(m_backgroundColor);
    background->addWidget(m_backgroundCheck);

    layOutKindForm();
    layOutSettingsForm();
    auto* separator = new QFrame;
    separator->setObjectName(QStringLiteral("NodeSeparator"));
    separator->setFixedWidth(15);
    separator->setFrameStyle(int(QFrame::VLine) | int(QFrame::Plain));
    separator->setLineWidth(2);

    auto* settings = new QVBoxLayout;
    settings->setContentsMargins(0, 0, 0, 0);
    settings->setSpacing(0);
    settings->addStretch(1);
    settings->addLayout(m_settingsForm);
    settings->addStretch(1);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(5, 0, 5, 0);
    row->addStretch(1);
    row->addLayout(m_kindForm);
    row->addWidget(separator);
    row->addLayout(settings);
    row->addStretch(1);
    optionsLayout()->addStretch(1);
    optionsLayout()->addLayout(row);
    optionsLayout()->addStretch(1);
    evenOutCaptions(); // the captions are within the page now, so they have its font
}

void WMRNode::layOutKindForm()
{
    // None, because a form keeps the spacing of its hidden rows: their captions hold rows apart.
    m_kindForm->setVerticalSpacing(0);
    m_kindForm->addRow(tr("Kind:"), m_kind);
    addRow(m_kindForm, tr("Logo:"), m_logoRow, m_imageNameEdit);
    m_kindForm->addRow(tr("Expand:"), m_expandButton);
    addRow(m_kindForm, tr("Text:"), m_textRow, m_textEdit);
    m_kindForm->addRow(tr("Font:"), m_fontBox);
    m_kindForm->addRow(tr("Text color:"), m_textColor);
    addRow(m_kindForm, tr("Background:"), m_backgroundRow, m_backgroundColor);
}

void WMRNode::evenOutCaptions()
{
    int widest = 0;
    for (int row = 0; row < m_kindForm->rowCount(); ++row) {
        QWidget* const caption = m_kindForm->itemAt(row, QFormLayout::LabelRole)->widget();
        caption->setMinimumHeight(row < kFirstSwatchRow ? kRowHeight : kSwatchRowHeight);
        caption->ensurePolished();
        widest = std::max(widest, caption->sizeHint().width());
    }
    // As wide for both kinds, so that the page stays where it is when the kind changes.
    m_kindForm->labelForField(m_kind)->setMinimumWidth(widest);
}

void WMRNode::layOutSettingsForm()
{
    m_settingsForm->setSpacing(5);
    m_settingsForm->addRow(tr(kTransparency.caption), m_transparency);
    m_settingsForm->addRow(tr(kSize.caption), m_size);
    addRow(m_settingsForm, tr("Position:"), m_positionRow, m_position);
    // Room for the unit that it hasn't, so that the numbers stand under each other.
    QLabel unit(QLatin1String(kSize.unit), this);
    unit.ensurePolished();
    m_transparency->setContentsMargins(0, 0, unit.sizeHint().width(), 0);
    m_size->setMinimumWidth(kSliderWidth);
}

void WMRNode::connectControls()
{
    connect(m_position, &DirectionsWidget::directionChanged, this, &WMRNode::parametersChanged);
    connect(m_textEdit, &QLineEdit::textChanged, this, &WMRNode::parametersChanged);
    for (QPushButton* button : {m_boldButton, m_italicButton, m_underlinedButton}) {
        connect(button, &QPushButton::clicked, this, &WMRNode::parametersChanged);
    }
    for (QSpinBox* offset : {m_xOffset, m_yOffset}) {
        connect(offset, qOverload<int>(&QSpinBox::valueChanged), this, &WMRNode::parametersChanged);
    }
    connect(m_fontBox, &QFontComboBox::currentFontChanged, this, &WMRNode::parametersChanged);
    // A name that is too long for the box shows its beginning.
    connect(m_fontBox, &QFontComboBox::currentFontChanged, this,
            [this] { m_fontBox->lineEdit()->home(false); });
    connect(m_backgroundCheck, &QCheckBox::stateChanged, this, &WMRNode::parametersChanged);
    connect(m_textColor, &ColorWidget::colorChanged, this, &WMRNode::parametersChanged);
    connect(m_backgroundColor, &ColorWidget::colorChanged, this, &WMRNode::parametersChanged);
    connect(m_kind, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &WMRNode::slotModeChanged);
    connect(m_expandButton, &QPushButton::clicked, this, &WMRNode::slotShrinkClicked);
    connect(m_browseButton, &QPushButton::clicked, this, &WMRNode::slotWMRBrowse);
}

void WMRNode::bindControls()
{
    ParameterBindings& all = bindings();
    all.bind(WMRXml::kMode, m_kind);
    all.bind(WMRXml::kSize, m_size);
    all.bind(WMRXml::kText, m_textEdit);
    all.bind(
        WMRXml::kPosition,
        [this](const QString& word) {
            int position = 0;
            if (WMRXml::readPosition(word, position)) {
                m_position->setDirection(Direction(position));
            }
        },
        [this] { return WMRXml::positionWord(m_position->direction()); });
    all.bind(WMRXml::kExpand, m_expandButton);
    all.bind(WMRXml::kBold, m_boldButton);
    all.bind(WMRXml::kItalic, m_italicButton);
    all.bind(WMRXml::kUnderlined, m_underlinedButton);
    all.bind(WMRXml::kXOffset, m_xOffset);
    all.bind(WMRXml::kYOffset, m_yOffset);
    all.bind(WMRXml::kTransparency, m_transparency);
    all.bind(WMRXml::kColor, m_textColor);
    all.bind(WMRXml::kBackground, m_backgroundColor);
    all.bind(WMRXml::kBackgroundEnabled, m_backgroundCheck);
    all.bind(
        WMRXml::kFont,
        [this](const QString& family) { m_fontBox->setCurrentFont(WMRXml::readFont(family)); },
        [this] { return m_fontBox->currentFont().family(); });
    all.bind(
        WMRXml::kImageData, [this](const QString& text) { WMRXml::readImage(text, m_logo); },
        [this] { return WMRXml::imageText(m_logo, m_imageNameEdit->text()); });
    all.bind(WMRXml::kImageName, m_imageNameEdit);
}

void WMRNode::readParameters(const QDomNode& parameters)
{
    ParameterNode::readParameters(parameters);
    setPlacementEnabled(hasPlacement(m_kind->currentIndex()));
}

WMRParams WMRNode::params() const
{
    WMRParams params;
    params.mode = m_kind->currentData().toInt();
    params.text = ParameterBindings::writable(m_textEdit->text());
    params.xOffset = m_xOffset->value();
    params.yOffset = m_yOffset->value();
    // Of the family alone, as the batch makes it: the box's font has more to it on some desktops.
    params.font = WMRXml::readFont(m_fontBox->currentFont().family());
    params.bold = m_boldButton->isChecked();
    params.italic = m_italicButton->isChecked();
    params.underlined = m_underlinedButton->isChecked();
    params.size = m_size->value();
    params.position = m_position->direction();
    params.transparency = m_transparency->value();
    params.color = toldColor(m_textColor);
    params.background = toldColor(m_backgroundColor);
    params.backgroundEnabled = m_backgroundCheck->isChecked();
    params.expand = m_expandButton->isChecked();
    params.imageName = m_imageNameEdit->text();
    params.image = WMRXml::imageOf(m_logo, params.imageName);
    return params;
}

void WMRNode::process(QImage& image)
{
    runFilter(image,
              [params = params()](const QImage& source) { return drawWatermark(source, params); });
}

QImage WMRNode::processFromXml(QImage&& image, const QString& xml)
{
    return ::drawWatermark(std::move(image), WMRParams::fromXml(xml));
}

std::function<QImage(QImage)> WMRNode::filterFromXml(const QString& xml)
{
    return [params = WMRParams::fromXml(xml)](QImage image) {
        return ::drawWatermark(std::move(image), params);
    };
}

QImage WMRNode::drawWatermark(const QImage& image, const WMRParams& params)
{
    return ::drawWatermark(image, params);
}

void WMRNode::slotModeChanged(int mode)
{
    const bool isText = mode == WMRParams::kTextMode;
    QWidget* const ofText[] = {m_boldButton,
                               m_italicButton,
                               m_underlinedButton,
                               m_textEdit,
                               m_fontBox,
                               m_textColor,
                               m_backgroundRow,
                               m_kindForm->labelForField(m_textRow),
                               m_kindForm->labelForField(m_fontBox),
                               m_kindForm->labelForField(m_textColor),
                               m_kindForm->labelForField(m_backgroundRow)};
    QWidget* const ofLogo[] = {m_imageNameEdit, m_browseButton, m_expandButton,
                               m_kindForm->labelForField(m_logoRow),
                               m_kindForm->labelForField(m_expandButton)};
    for (QWidget* widget : ofText) {
        widget->setVisible(isText);
    }
    for (QWidget* widget : ofLogo) {
        widget->setVisible(!isText);
    }
    setPlacementEnabled(hasPlacement(mode));
    emit parametersChanged();
}

void WMRNode::slotWMRBrowse()
{
    const QString path =
        QMWidgets::FileDialog::getOpenFileName(this, tr("Open the watermark file"));
    if (path.isEmpty()) {
        return;
    }
    const QString fileName = QFileInfo(path).fileName();
    if (!m_logo.load(path)) {
        const QString text = tr("Can not open the image file:") + fileName;
        QMWidgets::MMessageBox::critical(this, tr("Warning"), QMWidgets::literalText(text),
                                         QMessageBox::Ok, 0);
        return;
    }
    m_logo = WMRXml::imageAsTold(m_logo);
    m_imageNameEdit->setText(fileName);
    emit parametersChanged();
}

void WMRNode::slotShrinkClicked(bool checked)
{
    setPlacementEnabled(!checked);
    emit parametersChanged();
}

bool WMRNode::hasPlacement(int mode) const
{
    return mode == WMRParams::kTextMode || !m_expandButton->isChecked();
}

void WMRNode::setPlacementEnabled(bool enabled)
{
    QWidget* const widgets[] = {m_size, m_position, m_offsetBox,
                                m_settingsForm->labelForField(m_positionRow),
                                m_settingsForm->labelForField(m_size)};
    for (QWidget* widget : widgets) {
        widget->setEnabled(enabled);
    }
}
