#pragma once

#include <QFrame>

class QHBoxLayout;
class QMenu;
class QPixmap;
class QPushButton;
class QSignalMapper;

namespace QMWidgets
{

class AppButton;

/// The strip of image buttons at the top of the main page, with a drop-down catalogue of the
/// maker's products at its left and the program's menu at its right. Needs an App.
class PromoMenuBar : public QFrame
{
    Q_OBJECT

public:
    explicit PromoMenuBar(QWidget* parent = nullptr);

    /// Adds a product that opens the web address `url`; nothing happens if that is empty.
    void addCatalogueEntry(const QPixmap& icon, const QString& text, const QString& url);
    void addCatalogueSeparator();
    /// Adds the entry that opens the list of all products, with a separator on either side.
    void addMoreAppsEntry();

    /// Places for widgets of the application: left of the help button, and in the middle. The
    /// widget becomes the bar's child.
    void addRightWidget(QWidget* widget);
    void addCenterWidget(QWidget* widget);

    void setMoreAppsButtonHidden();

public slots:
    void slotCallUrl(const QString& url);

private:
    void layOut();

    QMenu* m_moreMenu = nullptr;
    QSignalMapper* m_urlMapper = nullptr;
    QHBoxLayout* m_rightBox = nullptr;
    QHBoxLayout* m_centerBox = nullptr;
    QPushButton* m_introButton = nullptr;
    QPushButton* m_moreButton = nullptr;
    QPushButton* m_rateButton = nullptr;
    QPushButton* m_moreAppsButton = nullptr;
    QPushButton* m_shareButton = nullptr;
    QPushButton* m_joinButton = nullptr;
    AppButton* m_appButton = nullptr;
};

} // namespace QMWidgets
