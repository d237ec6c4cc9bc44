#pragma once

namespace QMWidgets
{
class PromoMenuBar;
}

/// Fills the menu of the maker's other products: five tools, six for music, video and programming.
void fillCatalogue(QMWidgets::PromoMenuBar& menuBar);
