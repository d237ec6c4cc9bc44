#include "app/PromoMainPage.h"

#include <QMWidgets/PromoMenuBar.h>

PromoMainPage::PromoMainPage(QWidget* parent)
    : QFrame(parent),
      m_menuBar(new QMWidgets::PromoMenuBar(this))
{
}
