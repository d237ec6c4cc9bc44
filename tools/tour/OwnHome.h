#pragma once

#include <QString>

/// Moves the process into a home directory of its own, so that the user's settings, flows and
/// pictures stay as they are. Before the application object.
namespace OwnHome
{

/// Makes the folder with its parts and points the environment at it. Errors: false if the folder
/// can't be made, or if this system keeps the user's home or settings elsewhere all the same.
bool moveInto(const QString& folder);

} // namespace OwnHome
