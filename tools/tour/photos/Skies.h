#pragma once

#include "photos/Sky.h"

/// The skies of the sample photos.
namespace Skies
{

Sky alpineMorning();
Sky summerEvening();
Sky seaDusk();
Sky forestDawn();

} // namespace Skies
