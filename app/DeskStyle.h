#pragma once

#include <QProxyStyle>

/// What lies under the style sheet on every desktop: the few things that a sheet can't say. Sliders
/// keep their ticks, since the toolkit paints none beside a groove that a sheet draws; their
/// colours come from the sheet all the same, as the slider's text and selection colours. Menus get
/// windows that show what lies behind their round corners, thumbnails their own colours,
/// messages signs of the program's own drawing, and buttons that are read from right to left their
/// text beside their icon. Enter presses buttons in every window.
class DeskStyle : public QProxyStyle
{
    Q_OBJECT

public:
    DeskStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
    QPixmap standardPixmap(StandardPixmap picture, const QStyleOption* option,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};
