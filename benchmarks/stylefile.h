#ifndef CWIDGET_BENCHMARKS_STYLEFILE_H
#define CWIDGET_BENCHMARKS_STYLEFILE_H

#include <QDir>
#include <QFile>
#include <QString>

#include <unistd.h>

namespace bench
{

/// A style file with an entry for CLabel and each of \a count other classes, in letters of \a
/// size pixels.
class StyleFile
{
public:
    StyleFile(int count, int size)
        : m_path(QDir::tempPath() +
                 QString::fromLatin1("/cwidget-bench-%1-%2.xml").arg(getpid()).arg(size))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no style file can be written");
        file.write("<widget-style>" + entry("CLabel", size));
        for (int i = 0; i < count; ++i)
            file.write(entry("Class" + QByteArray::number(i), size));
        file.write("</widget-style>");
    }

    ~StyleFile()
    {
        QFile::remove(m_path);
    }

    QString path() const
    {
        return m_path;
    }

private:
    static QByteArray entry(const QByteArray& name, int size)
    {
        return "<widget name=\"" + name + "\"><FieldAll><font family=\"Arial\" size=\"" +
               QByteArray::number(size) + "\" bold=\"true\"/></FieldAll></widget>\n";
    }

    QString m_path;

    Q_DISABLE_COPY(StyleFile)
};

} // namespace bench

#endif
