#pragma once

class QUrl;

namespace QMWidgets
{

/// Opens a web or mail address with the desktop's own program. Whether that worked is the desktop's
/// matter: nobody is told of a failure. An empty address opens nothing.
void openAddress(const QUrl& url);

} // namespace QMWidgets
