#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Options {
    QStringList only;          ///< names of scenes; empty means all
    QString out;               ///< folder of the photos, the results and the pictures
    QString language;          ///< code of the interface's language, or empty for English
    QString operationPictures; ///< folder of the guide's pictures, or empty for the tour
    QString contactSheet;
    QString slides; ///< folder of the help's slides, or empty for the tour
    bool list = false;
    bool keepPhotos = false; ///< take the photos that the folder holds from an earlier tour
    bool help = false;
    QString error; ///< what is wrong with the command line, or empty

    static Options read(int argc, char** argv);
    static QString usage();
};
