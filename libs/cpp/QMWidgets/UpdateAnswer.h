#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

namespace QMWidgets
{

enum class UpdateState : int {
    Latest = -1,
    Unknown = 0,
    Newer = 1,
};

/// What an answer of the update service means for a program built on `buildDate`. A useful answer
/// has parts separated by ";;;": the marker "!date!" somewhere, and the date of the latest release
/// at its end, as in "!date!;;;2024-05-31".
/// Errors: Unknown without the marker; Latest if there is no date at the end.
UpdateState readUpdateAnswer(const QString& answer, const QDate& buildDate);

/// Text of an answer as it came: ASCII, up to the first zero byte.
QString updateAnswerText(const QByteArray& bytes);

} // namespace QMWidgets
