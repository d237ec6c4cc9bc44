#pragma once

#include <QString>

/// Where the user is in the list of photos, in heading size: the third of twelve reads "3 of 12".
QString positionText();
