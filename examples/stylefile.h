#ifndef CWIDGET_EXAMPLES_STYLEFILE_H
#define CWIDGET_EXAMPLES_STYLEFILE_H

#include <QCoreApplication>
#include <QFile>
#include <QString>

/// The style file that comes with the library: for an installed program the installed one, as seen
/// from the program's own folder, and for a program in the build folder that of the source tree.
inline QString shippedStyleFile()
{
    const QString installed =
        QCoreApplication::applicationDirPath() + QLatin1String("/" EXAMPLE_INSTALLED_STYLE_FILE);
    return QFile::exists(installed) ? installed : QString::fromLatin1(EXAMPLE_STYLE_FILE);
}

#endif
