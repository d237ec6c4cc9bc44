#include "LiteralText.h"

#include <QTextDocument>

namespace QMWidgets
{

QString literalText(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace QMWidgets
