#include "commands.h"

#include "report.h"
#include "samples.h"

#include <CWidgetStyle>
#include <QApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>

#include <cstdio>

namespace
{

void print(const QByteArray& text)
{
    fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stdout);
}

void complain(const QString& file, const char* text)
{
    fprintf(stderr, "cwidget-style: %s: %s\n", qPrintable(file), text);
}

/// Like the library, which reads files only, no devices and no folders.
bool readFile(const QString& path, QByteArray* content)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return true;
}

int statusOf(const Findings& findings, bool strict)
{
    for (int i = 0; i < findings.size(); ++i) {
        if (strict || findings.at(i).severity == Finding::Error)
            return commands::Bad;
    }
    return commands::Good;
}

/// The names of the entries in \a file, sorted, each once: the library tells only one at a time.
QStringList entryNames(const QByteArray& content)
{
    QStringList names;
    QDomDocument document;
    document.setContent(content);
    QDomElement widget = document.documentElement().firstChildElement(QLatin1String("widget"));
    for (; !widget.isNull(); widget = widget.nextSiblingElement(QLatin1String("widget")))
        names.append(widget.attribute(QLatin1String("name")));
    names.removeDuplicates();
    names.sort();
    return names;
}

QString colorText(const QColor& color)
{
    return color.isValid() ? color.name() : QString::fromLatin1("none");
}

QString fontText(const QFont& font)
{
    const QString size = font.pixelSize() > 0 ? QString::fromLatin1("%1 px").arg(font.pixelSize())
                                              : QString::fromLatin1("the default size");
    return QString::fromLatin1("\"%1\", %2, %3")
        .arg(font.family(), size, QLatin1String(font.bold() ? "bold" : "normal"));
}

void printEntry(const WidgetStyle& style)
{
    QString text = QString::fromLatin1("%1 (type %2)\n").arg(style.name).arg(style.type);
    for (int i = 0; i < style.styles.size(); ++i) {
        const Style& entry = style.styles.at(i);
        text += QString::fromLatin1("  %1: font %2; foreground %3; background %4\n")
                    .arg(stylereaders::elementOf(entry.field), fontText(entry.font),
                         colorText(entry.foreground), colorText(entry.background));
    }
    print(text.toLocal8Bit());
}

/// Draws \a name into \a path. False when the picture cannot be written.
bool draw(const QString& name, const QString& path)
{
    QWidget* const sample = samples::create(name);
    sample->setAttribute(Qt::WA_DontShowOnScreen);
    sample->show();
    QApplication::processEvents();
    const bool written = sample->grab().save(path);
    delete sample;
    return written;
}

} // namespace

namespace commands
{

int check(const QStringList& files, const CheckOptions& options)
{
    int status = Good;
    QByteArray objects;
    for (int i = 0; i < files.size(); ++i) {
        QByteArray content;
        Findings findings;
        if (readFile(files.at(i), &content)) {
            findings = StyleChecker(options.fonts).check(content);
            status = qMax(status, statusOf(findings, options.strict));
        } else {
            findings.append(
                Finding(0, 0, Finding::Error, "unreadable", QLatin1String("cannot be read")));
            status = Unreadable;
        }
        if (options.json)
            report::addJson(&objects, files.at(i), findings);
        else
            print(report::asText(files.at(i), findings));
    }
    if (options.json)
        print(report::jsonDocument(objects));
    return status;
}

int show(const QString& file)
{
    QByteArray content;
    if (!readFile(file, &content) || !CWidgetStyle::initialize(file)) {
        complain(file, "cannot be read");
        return Unreadable;
    }
    const QStringList names = entryNames(content);
    for (int i = 0; i < names.size(); ++i)
        printEntry(CWidgetStyle::getWidgetStyle(names.at(i)));
    return Good;
}

int font(const QString& file, const QString& family)
{
    if (!CWidgetStyle::initialize(file)) {
        complain(file, "cannot be read");
        return Unreadable;
    }
    if (CWidgetStyle::setWidgetStyle(file, QFont(family)))
        return Good;
    complain(file, "not rewritten: it holds no font, or cannot be written");
    return Bad;
}

int preview(const QString& file, const QString& folder)
{
    if (!CWidgetStyle::initialize(file)) {
        complain(file, "cannot be read");
        return Unreadable;
    }
    if (!QDir().mkpath(folder)) {
        complain(folder, "cannot be made");
        return Bad;
    }
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i) {
        const QString path = QDir(folder).filePath(names.at(i) + QLatin1String(".png"));
        if (!draw(names.at(i), path)) {
            complain(path, "cannot be written");
            return Bad;
        }
        print(path.toLocal8Bit() + '\n');
    }
    return Good;
}

} // namespace commands
