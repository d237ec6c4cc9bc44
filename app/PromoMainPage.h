#pragma once

#include <QFrame>

namespace QMWidgets
{
class PromoMenuBar;
}

/// A main page with the maker's menu bar.
class PromoMainPage : public QFrame
{
    Q_OBJECT

public:
    explicit PromoMainPage(QWidget* parent);

    /// Owned by the page, which lays it out.
    QMWidgets::PromoMenuBar* menuBar() const { return m_menuBar; }

private:
    QMWidgets::PromoMenuBar* m_menuBar;
};
