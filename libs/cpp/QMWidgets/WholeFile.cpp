#include "WholeFile.h"

#include <QSaveFile>

namespace QMWidgets
{

bool writeWholeFile(const QString& path, const QByteArray& content)
{
    // Written beside the target and renamed at the end. A write that goes half way is no error to
    // commit().
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.flush() && file.commit();
}

} // namespace QMWidgets
