// cwidget-style: looks at style files, rewrites their fonts, and draws what they make of the
// widgets. See cwidget-style(1).

#include "commands.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace
{

const char description[] =
    "Checks, shows and previews style files of the Quorlin widgets.\n"
    "\n"
    "Commands:\n"
    "  check FILE...         name everything in style files that does not reach a widget\n"
    "  show FILE             print the style table as the library reads it\n"
    "  font FILE FAMILY      give every font in FILE this family\n"
    "  preview FILE -o DIR   draw every class with FILE into PNG files in DIR";

/// The options, with the command to which each belongs.
struct Options {
    Options()
        : strict(QLatin1String("strict"),
                 QLatin1String("check: let warnings, too, give exit status 1.")),
          format(QLatin1String("format"), QLatin1String("check: text (the default) or json."),
                 QLatin1String("FORMAT"), QLatin1String("text")),
          ignoreFonts(QLatin1String("ignore-fonts"),
                      QLatin1String("check: say nothing of font families that this machine "
                                    "lacks.")),
          output(QStringList() << QLatin1String("o") << QLatin1String("output"),
                 QLatin1String("preview: the folder for the pictures."), QLatin1String("DIR"))
    {
    }

    QCommandLineOption strict;
    QCommandLineOption format;
    QCommandLineOption ignoreFonts;
    QCommandLineOption output;
};

int refuse(const QString& text)
{
    fprintf(stderr, "cwidget-style: %s; try --help\n", qPrintable(text));
    return commands::Unreadable;
}

int check(const QCommandLineParser& parser, const Options& options, const QStringList& files)
{
    const QString format = parser.value(options.format);
    if (files.isEmpty())
        return refuse(QLatin1String("check needs a file"));
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        return refuse(QString::fromLatin1("\"%1\" is no format").arg(format));
    const commands::CheckOptions checkOptions = {
        parser.isSet(options.ignoreFonts) ? StyleChecker::IgnoreFonts : StyleChecker::CheckFonts,
        parser.isSet(options.strict), format == QLatin1String("json")};
    return commands::check(files, checkOptions);
}

int run(const QCommandLineParser& parser, const Options& options)
{
    QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return refuse(QLatin1String("a command is missing"));
    const QString command = words.takeFirst();
    if (command == QLatin1String("check"))
        return check(parser, options, words);
    if (command == QLatin1String("show"))
        return words.size() == 1 ? commands::show(words.at(0))
                                 : refuse(QLatin1String("show needs one file"));
    if (command == QLatin1String("font"))
        return words.size() == 2 ? commands::font(words.at(0), words.at(1))
                                 : refuse(QLatin1String("font needs a file and a family"));
    if (command == QLatin1String("preview"))
        return words.size() == 1 && parser.isSet(options.output)
                   ? commands::preview(words.at(0), parser.value(options.output))
                   : refuse(QLatin1String("preview needs one file and -o DIR"));
    return refuse(QString::fromLatin1("\"%1\" is no command").arg(command));
}

/// The library says in its own words what it could not read; the commands do that in theirs.
void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&)
{
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // wherever it runs, nothing is to be seen
    qInstallMessageHandler(ignoreMessage);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("cwidget-style"));
    QApplication::setApplicationVersion(QLatin1String(CWIDGET_STYLE_TOOL_VERSION));

    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    parser.addPositionalArgument(QLatin1String("command"),
                                 QLatin1String("check, show, font or preview"));
    parser.addPositionalArgument(QLatin1String("arguments"), QLatin1String("see above"),
                                 QLatin1String("[arguments...]"));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOption(options.strict);
    parser.addOption(options.format);
    parser.addOption(options.ignoreFonts);
    parser.addOption(options.output);
    if (!parser.parse(QApplication::arguments()))
        return refuse(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp(commands::Good);
    if (parser.isSet(version))
        parser.showVersion();
    return run(parser, options);
}
