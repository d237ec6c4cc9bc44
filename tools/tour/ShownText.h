#pragma once

class QObject;
class QString;

/// How the program shows a text that its source gives in English, in the language of the interface.
/// `speaker` is what shows the text: its class says it, or the class of what it lies in, as a
/// dialog does for its buttons. A text that none of them translates comes back as it is.
QString shownText(const QObject* speaker, const QString& english);
