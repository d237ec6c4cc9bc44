#include "Options.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

namespace
{

/// Tours that start in the same second differ by their process.
QString defaultFolder()
{
    return QDir::temp().filePath(
        QStringLiteral("tessarin-tour-%1-%2")
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")))
            .arg(QCoreApplication::applicationPid()));
}

} // namespace

Options Options::read(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const QString word = QString::fromLocal8Bit(argv[i]);
        const bool takesValue =
            word == QLatin1String("--only") || word == QLatin1String("--out") ||
            word == QLatin1String("--language") || word == QLatin1String("--operation-pictures") ||
            word == QLatin1String("--contact-sheet") || word == QLatin1String("--slides");
        const QString value =
            takesValue && i + 1 < argc ? QString::fromLocal8Bit(argv[i + 1]) : QString();
        if (takesValue && value.isEmpty()) {
            options.error = word + QStringLiteral(" needs a value");
            return options;
        }
        i += takesValue ? 1 : 0;
        if (word == QLatin1String("--only")) {
            options.only += value.split(QLatin1Char(','), Qt::SkipEmptyParts);
        } else if (word == QLatin1String("--out")) {
            options.out = QDir(value).absolutePath();
        } else if (word == QLatin1String("--language")) {
            options.language = value;
        } else if (word == QLatin1String("--operation-pictures")) {
            options.operationPictures = QDir(value).absolutePath();
        } else if (word == QLatin1String("--contact-sheet")) {
            options.contactSheet = QDir(value).absolutePath();
        } else if (word == QLatin1String("--slides")) {
            options.slides = QDir(value).absolutePath();
        } else if (word == QLatin1String("--list")) {
            options.list = true;
        } else if (word == QLatin1String("--keep-photos")) {
            options.keepPhotos = true;
        } else if (word == QLatin1String("--help") || word == QLatin1String("-h")) {
            options.help = true;
        } else {
            options.error = QStringLiteral("What is %1?").arg(word);
        }
    }
    if (options.out.isEmpty()) {
        options.out = defaultFolder();
    }
    return options;
}

QString Options::usage()
{
    return QStringLiteral(
        "tessarin_tour [--only NAME,...] [--out FOLDER] [--language CODE] [--keep-photos]\n"
        "tessarin_tour --list\n"
        "tessarin_tour --operation-pictures FOLDER\n"
        "tessarin_tour --contact-sheet FOLDER\n"
        "tessarin_tour --slides FOLDER [--out FOLDER] [--keep-photos]\n"
        "\n"
        "Paints sample photos, drives the program through its main job with mouse and keys,\n"
        "and takes pictures of its windows on the way.\n"
        "\n"
        "  --only NAME,...  these scenes only\n"
        "  --out FOLDER     where everything goes; a new folder among the temporary files if\n"
        "                   it is missing\n"
        "  --language CODE  show the program in this language, such as de\n"
        "  --keep-photos    take the photos that the folder holds from an earlier tour\n"
        "  --list           name the scenes and end\n"
        "\n"
        "  --operation-pictures FOLDER  write the pictures of docs/operations.md there instead\n"
        "  --contact-sheet FOLDER       draw all pictures of the resources there instead, at the\n"
        "                               size of the screen that QT_SCALE_FACTOR tells\n"
        "  --slides FOLDER              draw the slides of the help there instead\n");
}
