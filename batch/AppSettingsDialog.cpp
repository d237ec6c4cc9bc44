#include "batch/AppSettingsDialog.h"

#include "flow/ComboSlider.h"
#include <QMWidgets/App.h>
#include <QMWidgets/GroupBox.h>
#include <QMWidgets/TabOrder.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

const QString kOpenLocation = QStringLiteral("KeyOpenLocation");
const QString kFormat = QStringLiteral("KeyFormat");
const QString kQuality = QStringLiteral("KeyQuality");
const QString kRename = QStringLiteral("KeyRename");
const QString kNewName = QStringLiteral("KeyNewName");
const QString kNumbers = QStringLiteral("KeyNumbers");

const QString kJpeg = QStringLiteral("JPEG");

QVariant stored(const QString& key, const QVariant& defaultValue)
{
    return QMWidgets::App::app()->settingsValue(key, defaultValue);
}

void store(const QString& key, const QVariant& value)
{
    QMWidgets::App::app()->setSettingsValue(key, value);
}

QHBoxLayout* rightAligned(QWidget* first, QWidget* second)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(first);
    row->addWidget(second);
    return row;
}

QPushButton* makeButton(const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QStringLiteral("PushButton"));
    return button;
}

} // namespace

AppSettingsDialog::AppSettingsDialog(QWidget* parent)
    : QDialog(parent),
      m_openLocationCheck(new QCheckBox(tr("Open Destination Folder When Done"), this)),
      m_qualityLabel(new QLabel(tr("Quiality:"), this)), // sic
      m_formatBox(new QComboBox(this)),
      m_quality(new ComboSlider(QString(), this)),
      m_newNameEdit(new QLineEdit(this)),
      m_numbersBox(new QComboBox(this)),
      m_renameBox(nullptr)
{
    setWindowTitle(QCoreApplication::applicationName() + tr(" Settings"));
    setWindowFlags(Qt::Tool | Qt::WindowSystemMenuHint);

    QPushButton* const okButton = makeButton(tr("Ok"), this);
    QPushButton* const cancelButton = makeButton(tr("Cancel"), this);
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &AppSettingsDialog::slotSaveSettings);
    connect(cancelButton, &QPushButton::clicked, this, &AppSettingsDialog::reject);

    auto* inner = new QVBoxLayout;
    inner->setSpacing(20);
    inner->setContentsMargins(10, 10, 10, 10);
    inner->addWidget(makeFormatBox());
    m_renameBox = makeRenameBox();
    inner->addWidget(m_renameBox);
    inner->addWidget(m_openLocationCheck);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelButton);
    buttons->addWidget(okButton);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(inner);
    layout->addLayout(buttons);
    QMWidgets::tabAsLaidOut(this);

    slotLoadSettings();
}

QGroupBox* AppSettingsDialog::makeFormatBox()
{
    connect(m_formatBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &AppSettingsDialog::slotFormatChanged);
    m_formatBox->addItems({kJpeg, QStringLiteral("PNG"), QStringLiteral("BMP"),
                           QStringLiteral("TIFF"), QStringLiteral("PPM"), QStringLiteral("XPM")});
    m_quality->setRange(1, 100);
    m_quality->setFixedWidth(140);
    m_quality->setControlName(m_qualityLabel->text());

    auto* formatLabel = new QLabel(tr("Format:"), this);
    formatLabel->setBuddy(m_formatBox);
    m_qualityLabel->setBuddy(m_quality);
    auto* box = new QGroupBox(tr("Output Format"), this);
    auto* layout = new QVBoxLayout(box);
    layout->addLayout(rightAligned(formatLabel, m_formatBox));
    layout->addLayout(rightAligned(m_qualityLabel, m_quality));
    return box;
}

QGroupBox* AppSettingsDialog::makeRenameBox()
{
    m_numbersBox->addItems({tr("All"), tr("Odd"), tr("Even")});
    auto* box = new QMWidgets::GroupBox(tr("Rename"), this);
    box->setCheckable(true);
    auto* form = new QFormLayout(box);
    form->addRow(tr("New Name:"), m_newNameEdit);
    form->addRow(tr("Numbers:"), m_numbersBox);
    return box;
}

bool AppSettingsDialog::keyOpenLocation()
{
    return stored(kOpenLocation, true).toBool();
}

QString AppSettingsDialog::keyFormat()
{
    return stored(kFormat, kJpeg).toString();
}

int AppSettingsDialog::keyQuality()
{
    return stored(kQuality, 90).toInt();
}

bool AppSettingsDialog::keyRename()
{
    return stored(kRename, false).toBool();
}

QString AppSettingsDialog::keyNewName()
{
    return stored(kNewName, QStringLiteral("NewName")).toString();
}

int AppSettingsDialog::keyNumbers()
{
    return stored(kNumbers, 0).toInt();
}

void AppSettingsDialog::slotLoadSettings()
{
    m_openLocationCheck->setChecked(keyOpenLocation());
    m_renameBox->setChecked(keyRename());
    m_newNameEdit->setText(keyNewName());
    m_quality->setValue(keyQuality());
    m_formatBox->setCurrentText(keyFormat());
    m_numbersBox->setCurrentIndex(keyNumbers());
}

void AppSettingsDialog::slotSaveSettings()
{
    store(kOpenLocation, m_openLocationCheck->isChecked());
    store(kRename, m_renameBox->isChecked());
    store(kQuality, m_quality->value());
    store(kNewName, m_newNameEdit->text());
    store(kFormat, m_formatBox->currentText());
    store(kNumbers, m_numbersBox->currentIndex());
    accept();
}

void AppSettingsDialog::slotFormatChanged()
{
    const bool hasQuality = m_formatBox->currentText() == kJpeg;
    m_quality->setEnabled(hasQuality);
    m_qualityLabel->setEnabled(hasQuality);
}

void AppSettingsDialog::showEvent(QShowEvent* event)
{
    slotLoadSettings();
    QDialog::showEvent(event);
}
