#include "app/HelpSlides.h"

namespace
{
constexpr int kSlides = 12;
} // namespace

QStringList helpSlides(const QString& language, const QString& folder)
{
    const QStringList languages = {QStringLiteral("en"), QStringLiteral("de"),
                                   QStringLiteral("ru")};
    const QString code = languages.contains(language) ? language : languages.first();
    QStringList paths;
    for (int i = 1; i <= kSlides; ++i) {
        paths.append(QStringLiteral("%1TS%2_%3.jpeg").arg(folder, QString::number(i), code));
    }
    return paths;
}
