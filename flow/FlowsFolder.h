#pragma once

#include <QString>

/// The folder of the user's saved flows, with a slash at its end; made if it is missing.
QString flowsFolder();
