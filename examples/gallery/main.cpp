// The gallery: a device's front panel that shows every widget of the library, built as an
// application developer would build it.

#include "common/netlinkaddress.h"
#include "gallerywidgets.h"
#include "monkey.h"
#include "panel.h"
#include "shots.h"
#include "stylefile.h"

#include <CWidgetStyle>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <cstdio>
#include <new>

namespace
{

const char usage[] =
    "usage: quorlin-gallery [--style FILE] [--screen NAME] [--shots DIR]\n"
    "                       [--monkey STEPS [--seed NUMBER]]\n"
    "                       [--log] [--platform PLATFORM and other options of Qt]\n"
    "\n"
    "  --style FILE    the style file; without it, a copy of the one that comes\n"
    "                  with the library\n"
    "  --screen NAME   the screen to start with: ";

const char usageEnd[] =
    "  --shots DIR     draw every screen into a picture in DIR, and leave\n"
    "  --monkey STEPS  touch, type, plug and restyle without sense, so many\n"
    "                  times, and leave; fails when Qt or the library warns of\n"
    "                  something, or when the panel has grown since the middle\n"
    "  --seed NUMBER   the same number makes the same steps; 1 by default\n"
    "  --log           print what the bottom bar says\n"
    "  --help          print this, and leave\n";

const char noDisplay[] =
    "There is no display. Draw the screens into pictures instead, with --shots DIR, or serve the\n"
    "panel over the network, without a password, with --platform vnc:size=800x600\n";

const char servedByVnc[] = "The panel is served by VNC, on port 5900, without a password: anyone "
                           "who reaches this machine\n"
                           "can see and use it.\n";

const char noMemory[] = "There is not enough memory for the panel.\n";

struct Options {
    Options() : valid(true), log(false), help(false)
    {
    }

    bool valid;
    bool log;
    bool help;
    QString style;
    QString screen;
    QString shots;
    QString monkey;
    QString seed;
};

/// Takes the gallery's own arguments out of \a arguments. Qt must not see them: it has a --style of
/// its own, which is still to be had as -style.
Options takeOptions(QStringList* arguments)
{
    Options options;
    for (int i = 1; i < arguments->size() && options.valid;) {
        const QString name = arguments->at(i);
        QString* value = name == QLatin1String("--style")    ? &options.style
                         : name == QLatin1String("--screen") ? &options.screen
                         : name == QLatin1String("--shots")  ? &options.shots
                         : name == QLatin1String("--monkey") ? &options.monkey
                         : name == QLatin1String("--seed")   ? &options.seed
                                                             : nullptr;
        bool* flag = name == QLatin1String("--log")    ? &options.log
                     : name == QLatin1String("--help") ? &options.help
                                                       : nullptr;
        if (!value && !flag) {
            ++i;
            continue;
        }
        arguments->removeAt(i);
        if (flag) {
            *flag = true;
            continue;
        }
        options.valid = i < arguments->size();
        if (options.valid)
            *value = arguments->takeAt(i);
        else
            fprintf(stderr, "%s needs a value\n", qPrintable(name));
    }
    return options;
}

void printUsage(FILE* file)
{
    fprintf(file, "%s%s\n%s", usage, qPrintable(Panel::screenNames().join(QLatin1String(", "))),
            usageEnd);
}

int printMistake(const char* what, const QString& word)
{
    fprintf(stderr, "%s: %s\n", what, qPrintable(word));
    printUsage(stderr);
    return 2;
}

/// The platform that is asked for; empty where Qt is to choose.
QString platformOf(const QStringList& arguments)
{
    for (int i = 1; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("-platform") ||
            arguments.at(i) == QLatin1String("--platform"))
            return arguments.at(i + 1);
    }
    return QString::fromLocal8Bit(qgetenv("QT_QPA_PLATFORM"));
}

/// Without a display Qt could only give up. Pictures are then drawn in memory; returns false, and
/// says what to do, where that is not what is wanted.
bool choosePlatform(const Options& options, const QStringList& arguments)
{
    const QString platform = platformOf(arguments);
    if (platform.startsWith(QLatin1String("vnc")))
        fputs(servedByVnc, stderr);
    if (!platform.isEmpty() || !qgetenv("DISPLAY").isEmpty() ||
        !qgetenv("WAYLAND_DISPLAY").isEmpty())
        return true;
    if (options.shots.isEmpty())
        fputs(noDisplay, stderr);
    else
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return !options.shots.isEmpty();
}

/// What is left of the command line, as main() gets it.
class Arguments
{
public:
    explicit Arguments(const QStringList& arguments)
    {
        for (int i = 0; i < arguments.size(); ++i)
            m_texts.append(arguments.at(i).toLocal8Bit());
        for (int i = 0; i < m_texts.size(); ++i)
            m_pointers.append(m_texts[i].data());
        m_pointers.append(0);
        m_count = m_texts.size();
    }

    int& count()
    {
        return m_count;
    }

    char** values()
    {
        return m_pointers.data();
    }

private:
    QList<QByteArray> m_texts;
    QVector<char*> m_pointers;
    int m_count;
};

/// The theme screen rewrites its style file, so the library's own is copied first.
QString copyOfDefaultStyle()
{
    const QString copy = QDir::temp().filePath(
        QString::fromLatin1("quorlin-gallery-%1.xml").arg(QApplication::applicationPid()));
    QFile::remove(copy);
    return QFile::copy(shippedStyleFile(), copy) ? copy : QString();
}

int runMonkey(const Options& options, Panel* panel)
{
    panel->show();
    panel->activateWindow();
    QMetaObject::invokeMethod(panel->screen(QLatin1String("devices")), "watch");
    const unsigned int seed = options.seed.isEmpty() ? 1 : options.seed.toUInt();
    return Monkey(panel, options.monkey.toInt(), seed).run() ? 0 : 1;
}

int run(const Options& options, NetlinkAddress* address)
{
    const QString copy = options.style.isEmpty() ? copyOfDefaultStyle() : QString();
    const QString style = options.style.isEmpty() ? copy : options.style;
    if (!CWidgetStyle::initialize(style))
        fprintf(stderr, "The style file %s cannot be read; the panel has no styles.\n",
                qPrintable(style));
    Panel panel(style);
    panel.setLogging(options.log);
    panel.showScreen(options.screen.isEmpty() ? Panel::screenNames().first() : options.screen);
    int result = 0;
    if (!options.monkey.isEmpty()) {
        address->release();
        result = runMonkey(options, &panel);
    } else if (options.shots.isEmpty()) {
        panel.show();
        address->release();
        QTimer::singleShot(0, panel.screen(QLatin1String("devices")), SLOT(watch()));
        result = QApplication::exec();
    } else {
        result = writeShots(&panel, options.shots) ? 0 : 1;
    }
    if (!copy.isEmpty())
        QFile::remove(copy);
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const Options options = takeOptions(&words);
    if (options.help) {
        printUsage(stdout);
        return 0;
    }
    if (!options.valid) {
        printUsage(stderr);
        return 2;
    }
    if (!options.screen.isEmpty() && !Panel::screenNames().contains(options.screen))
        return printMistake("no such screen", options.screen);
    if (!options.monkey.isEmpty() && options.monkey.toInt() < 2)
        return printMistake("not a number of steps from 2 up", options.monkey);
    bool isNumber = options.seed.isEmpty();
    if (!isNumber)
        options.seed.toUInt(&isNumber);
    if (!isNumber)
        return printMistake("not a number", options.seed);
    if (!choosePlatform(options, words))
        return 1;
    Arguments arguments(words);
    NetlinkAddress address;
    QApplication application(arguments.count(), arguments.values());
    QApplication::setApplicationName(QLatin1String("Quorlin gallery"));
    if (QApplication::arguments().size() > 1) // neither ours nor Qt's
        return printMistake("unknown option", QApplication::arguments().at(1));
    try {
        return run(options, &address);
    } catch (const std::bad_alloc&) {
        fputs(noMemory, stderr);
        return 1;
    }
}
