#pragma once

#include "flow/nodes/WMRParams.h"
#include "flow/ParameterNode.h"

#include <functional>

class DirectionsWidget;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// A text or a logo over the photo. The logo that the user chose travels inside the parameters.
class WMRNode : public ParameterNode
{
    Q_OBJECT

public:
    using WMRParams = ::WMRParams;

    WMRNode(const QString& name, QWidget* parent);

    void readParameters(const QDomNode& parameters) override;
    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);
    /// The same for many images: a large logo takes longer to read than to draw.
    static std::function<QImage(QImage)> filterFromXml(const QString& xml);
    static QImage drawWatermark(const QImage& image, const WMRParams& params);

public slots:
    /// Shows the controls of a text (mode 0) or those of a logo (any other).
    void slotModeChanged(int mode);
    void slotWMRBrowse();
    /// Greys out size and place of a logo that covers the whole photo.
    void slotShrinkClicked(bool checked);

private:
    void setUpTextControls();
    void setUpLogoControls();
    void setUpPlacementControls();
    void layOut();
    void layOutKindForm();
    /// Holds the form's rows apart, and its columns where they are for both kinds.
    void evenOutCaptions();
    void layOutSettingsForm();
    void connectControls();
    void bindControls();
    /// A text always has a size and a place, a logo unless it is expanded.
    bool hasPlacement(int mode) const;
    void setPlacementEnabled(bool enabled);
    WMRParams params() const;

    QComboBox* m_kind;
    QLineEdit* m_textEdit;
    DirectionsWidget* m_position;
    ComboSlider* m_size;
    QMWidgets::ColorWidget* m_textColor;
    ComboSlider* m_transparency;
    QMWidgets::ColorWidget* m_backgroundColor;
    QCheckBox* m_backgroundCheck;
    QWidget* m_backgroundRow;
    QFontComboBox* m_fontBox;
    QFormLayout* m_kindForm;
    QPushButton* m_boldButton;
    QPushButton* m_italicButton;
    QPushButton* m_underlinedButton;
    QImage m_logo;
    QLineEdit* m_imageNameEdit;
    QPushButton* m_browseButton;
    QHBoxLayout* m_logoRow;
    QPushButton* m_expandButton;
    QSpinBox* m_xOffset;
    QSpinBox* m_yOffset;
    QGroupBox* m_offsetBox;
    QFormLayout* m_settingsForm;
    QHBoxLayout* m_positionRow;
    QHBoxLayout* m_textRow;
};
