#include "app/Catalogue.h"

#include <QMWidgets/MakerSite.h>
#include <QMWidgets/PromoMenuBar.h>

#include <QPixmap>

namespace
{

struct Product {
    const char* caption; ///< a product's name is the same in every language
    const char* name;    ///< of its icon among the resources and of its page on the maker's site
};

constexpr Product kTools[] = {
    {"Ledgerline: household accounts", "ledgerline"},
    {"Dovecrate: mail archive", "dovecrate"},
    {"Pinfolder: notes and clippings", "pinfolder"},
    {"Quillbox: plain text writer", "quillbox"},
    {"Hourspan: time keeper", "hourspan"},
};

constexpr Product kStudio[] = {
    {"Chordlamp: chord finder", "chordlamp"}, {"Tonewright: sound editor", "tonewright"},
    {"Reelspan: film cutter", "reelspan"},    {"Framewick: stop motion", "framewick"},
    {"Byteloom: hex editor", "byteloom"},     {"Bracewright: code formatter", "bracewright"},
};

template <std::size_t count>
void addProducts(QMWidgets::PromoMenuBar& menuBar, const Product (&products)[count])
{
    for (const Product& product : products) {
        const QLatin1String name(product.name);
        menuBar.addCatalogueEntry(
            QPixmap(QLatin1String(":/") + name + QLatin1String(".png")),
            QLatin1String(product.caption),
            QMWidgets::MakerSite::page(QLatin1String("/apps/") + name + QLatin1Char('/')));
    }
}

} // namespace

void fillCatalogue(QMWidgets::PromoMenuBar& menuBar)
{
    addProducts(menuBar, kTools);
    menuBar.addCatalogueSeparator();
    addProducts(menuBar, kStudio);
    menuBar.addCatalogueSeparator();
    menuBar.addMoreAppsEntry();
}
