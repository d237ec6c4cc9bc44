#pragma once

#include <QUrl>

namespace QMWidgets
{

/// The address that opens a new mail in the user's mail program. `to` may be empty. Signs in
/// `subject` and `body` that would end the field or the address are encoded.
QUrl mailUrl(const QString& to, const QString& subject, const QString& body);

} // namespace QMWidgets
