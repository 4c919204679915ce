// What must be added in a second place when something new comes: each list names what it lacks.

#include "support/sourcetree.h"
#include "support/testing.h"

#include <QDir>

using sourcetree::between;
using sourcetree::filesBelow;
using sourcetree::filesIn;
using sourcetree::hasWord;
using sourcetree::isPublicHeader;
using sourcetree::librarySources;
using sourcetree::linesOf;
using sourcetree::root;
using sourcetree::textOf;

namespace
{

QString textOfAll(const QStringList& paths)
{
    QString text;
    for (int i = 0; i < paths.size(); ++i)
        text += textOf(paths.at(i));
    return text;
}

/// "label" of "widgets/label.cpp".
QString baseName(const QString& path)
{
    return path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
}

QString folderOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 0, -2);
}

// ---- what there is

QStringList sources()
{
    return librarySources();
}

QStringList implementations()
{
    return librarySources().filter(QLatin1String(".cpp"));
}

QStringList publicHeaders()
{
    QStringList headers;
    const QStringList all = librarySources();
    for (int i = 0; i < all.size(); ++i) {
        if (isPublicHeader(all.at(i)))
            headers.append(all.at(i));
    }
    return headers;
}

QStringList exportedClasses()
{
    QStringList classes;
    const QStringList names = between(textOfAll(publicHeaders()), "class CWIDGET_EXPORT ", "\n");
    for (int i = 0; i < names.size(); ++i)
        classes.append(names.at(i).section(QLatin1Char(' '), 0, 0));
    return classes;
}

/// The names of the entries that the constructors ask for.
QStringList styleEntries()
{
    QStringList names = between(textOfAll(implementations()),
                                "CWidgetStyle::getWidgetStyle(QLatin1String(\"", "\"");
    names.removeDuplicates();
    return names;
}

QStringList pictures()
{
    return filesIn(QLatin1String("resources/images"), "*.png");
}

QStringList testPrograms()
{
    return filesBelow(QLatin1String("tests"), "tst_*.cpp");
}

QStringList fuzzers()
{
    return filesIn(QLatin1String("fuzz"), "fuzz_*.cpp");
}

QStringList benchmarks()
{
    return filesIn(QLatin1String("benchmarks"), "*.cpp");
}

/// The enumerations of the public headers, as "header: name".
QStringList enumerations()
{
    QStringList found;
    const QStringList headers = publicHeaders();
    for (int i = 0; i < headers.size(); ++i) {
        const QStringList lines = linesOf(headers.at(i));
        for (int j = 0; j < lines.size(); ++j) {
            const QString line = lines.at(j).trimmed();
            if (line.startsWith(QLatin1String("enum ")))
                found.append(headers.at(i) + QLatin1String(": ") +
                             line.section(QLatin1Char(' '), 1, 1));
        }
    }
    return found;
}

/// The text of a constant of a source; the name of the constant when there is none.
QString constantOf(const QString& source, const QString& name)
{
    const QByteArray before = "const char " + name.toLatin1() + "[] = \"";
    const QStringList texts = between(source, before.constData(), "\";");
    return texts.isEmpty() ? name : texts.first();
}

/// The formats of the messages that the library prints.
QStringList messages()
{
    const char* const channels[] = {"qDebug(", "qWarning(", "qCritical(", "qFatal("};
    QStringList formats;
    const QStringList paths = sources();
    for (int i = 0; i < paths.size(); ++i) {
        const QString source = textOf(paths.at(i));
        for (size_t j = 0; j < sizeof channels / sizeof channels[0]; ++j) {
            QStringList calls = between(source, channels[j], ";");
            for (int k = 0; k < calls.size(); ++k) {
                const QString literal = calls[k]
                                            .replace(QLatin1String("\\\""), QLatin1String("\a"))
                                            .section(QLatin1Char('"'), 1, 1);
                const QString argument =
                    calls.at(k).section(QLatin1Char(','), 1).section(QLatin1Char(')'), 0, 0);
                formats.append(literal == QLatin1String("%s")
                                   ? constantOf(source, argument.trimmed())
                                   : QString(literal).replace(QLatin1Char('\a'), QLatin1Char('"')));
            }
        }
    }
    formats.removeDuplicates();
    return formats;
}

// ---- where it stands

bool isInItsCMakeLists(const QString& source)
{
    return hasWord(textOf(folderOf(source) + QLatin1String("/CMakeLists.txt")), baseName(source));
}

/// A header without a source is installed and not compiled.
bool isBuilt(const QString& source)
{
    const QStringList built =
        QString::fromUtf8(testing::contentOf(QLatin1String(CWIDGET_SOURCE_LIST)))
            .split(QLatin1Char('\n'));
    return built.contains(root() + source) || (isPublicHeader(source) && isInItsCMakeLists(source));
}

bool hasTest(const QString& source)
{
    const QByteArray name = baseName(source).toLatin1();
    const QByteArray patterns = "tst_" + name + ".cpp tst_" + name + "_*.cpp";
    return !filesIn(QLatin1String("tests/") + folderOf(source), patterns.constData()).isEmpty();
}

bool hasForwardingHeader(const QString& name)
{
    return QFile::exists(QLatin1String(CWIDGET_BINARY_DIR "/forwarding/") + name);
}

bool isInTheGallery(const QString& name)
{
    return hasWord(textOfAll(filesIn(QLatin1String("examples/gallery"))), name);
}

bool isInTheReference(const QString& name)
{
    return textOf(QLatin1String("docs/reference/groups.dox"))
        .contains(QLatin1String("/// \\class ") + name + QLatin1Char(' '));
}

bool isInDesigner(const QString& name)
{
    return textOf(QLatin1String("designer/widgetrow.cpp"))
        .contains(QLatin1String("\"") + name + QLatin1String("\""));
}

bool hasStyleEntry(const QString& name)
{
    return textOf(QLatin1String("style/widget-style.xml"))
        .contains(QLatin1String("name=\"") + name + QLatin1String("\">"));
}

QString fileName(const QString& picture)
{
    return picture.section(QLatin1Char('/'), -1);
}

bool isInTheCollection(const QString& picture)
{
    return textOf(QLatin1String("resources/cwidget.qrc"))
        .contains(QLatin1String(">images/") + fileName(picture) + QLatin1String("</file>"));
}

bool hasNumbers(const QString& picture)
{
    return textOf(QLatin1String("style/statepixmaps.cpp"))
        .contains(QLatin1Char('"') + fileName(picture) + QLatin1Char('"'));
}

bool hasTestOfLooks(const QString& picture)
{
    return textOfAll(filesIn(QLatin1String("tests/resources"), "tst_looks.cpp tst_pictures.cpp"))
        .contains(QLatin1Char('"') + fileName(picture) + QLatin1Char('"'));
}

bool isRunAsFuzzer(const QString& source)
{
    const QString call =
        baseName(source).replace(QLatin1String("fuzz_"), QLatin1String("cwidget_add_fuzzer("));
    return hasWord(textOf(QLatin1String("fuzz/CMakeLists.txt")), call);
}

bool hasSeeds(const QString& source)
{
    const QString folder =
        baseName(source).replace(QLatin1String("fuzz_"), QLatin1String("seeds/"));
    return !filesIn(QLatin1String("fuzz/") + folder, "*").isEmpty();
}

QString lastEnumerator(const QString& header, const QString& name)
{
    const QByteArray before = "enum " + name.toLatin1();
    const QStringList lines =
        between(textOf(header), before.constData(), "}").value(0).split(QLatin1Char('\n'));
    QString list;
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines.at(i).startsWith(QLatin1Char('#')))
            list += lines.at(i).section(QLatin1String("//"), 0, 0);
    }
    return list.section(QLatin1Char('{'), 1)
        .split(QLatin1Char(','))
        .last()
        .section(QLatin1Char('='), 0, 0)
        .trimmed();
}

/// Whether some table is counted against the last enumerator. One more at the end of either alone
/// no longer compiles, or is found here.
bool isTiedToATable(const QString& enumeration)
{
    const QString last = lastEnumerator(enumeration.section(QLatin1String(": "), 0, 0),
                                        enumeration.section(QLatin1String(": "), 1));
    const QString code = textOfAll(implementations());
    const QStringList checks = between(code, "static_assert(", ";");
    return !last.isEmpty() && (code.contains(last + QLatin1String(" + 1")) ||
                               hasWord(checks.join(QLatin1String(" ")), last));
}

/// Whether \a line has the parts of \a format between what is put in, one after the other.
bool shows(const QString& line, const QString& format)
{
    const QStringList parts = QString(format)
                                  .replace(QLatin1String("%d"), QLatin1String("%s"))
                                  .replace(QLatin1String("%u"), QLatin1String("%s"))
                                  .split(QLatin1String("%s"));
    int at = 0;
    for (int i = 0; i < parts.size() && at >= 0; ++i) {
        at = static_cast<int>(line.indexOf(parts.at(i), at));
        at += at < 0 ? 0 : static_cast<int>(parts.at(i).size());
    }
    return at >= 0;
}

bool isExplained(const QString& format)
{
    const QStringList lines = linesOf(QLatin1String("docs/troubleshooting.md"));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(QLatin1String("| `")) && shows(lines.at(i), format))
            return true;
    }
    return false;
}

// ---- the lists

const struct List {
    const char* name;
    QStringList (*things)();
    int fewest; // fewer are not all
    bool (*has)(const QString& thing);
    const char* place;
} lists[] = {
    // clang-format off
    {"style entry", styleEntries,    11, hasStyleEntry,       "style/widget-style.xml"},
    {"build",       sources,         80, isBuilt,             "the CMakeLists.txt of its folder"},
    {"test",        implementations, 45, hasTest,             "tests/FOLDER/tst_FILE.cpp"},
    {"test run",    testPrograms,    80, isInItsCMakeLists,   "the CMakeLists.txt of its folder"},
    {"forwarding",  exportedClasses, 34, hasForwardingHeader, "the cwidget_class() of its folder's CMakeLists.txt"},
    {"gallery",     exportedClasses, 34, isInTheGallery,      "examples/gallery"},
    {"reference",   exportedClasses, 34, isInTheReference,    "docs/reference/groups.dox"},
    {"Designer",    exportedClasses, 34, isInDesigner,        "designer/widgetrow.cpp"},
    {"collection",  pictures,        73, isInTheCollection,   "resources/cwidget.qrc"},
    {"numbers",     pictures,        73, hasNumbers,          "style/statepixmaps.cpp"},
    {"looks",       pictures,        73, hasTestOfLooks,      "tests/resources/tst_looks.cpp or tst_pictures.cpp"},
    {"fuzzer run",  fuzzers,          5, isRunAsFuzzer,       "fuzz/CMakeLists.txt"},
    {"seeds",       fuzzers,          5, hasSeeds,            "fuzz/seeds/NAME"},
    {"benchmark",   benchmarks,       7, isInItsCMakeLists,   "benchmarks/CMakeLists.txt"},
    {"enumeration", enumerations,    25, isTiedToATable,      "a static_assert on the table of its rows"},
    {"message",     messages,        11, isExplained,         "docs/troubleshooting.md"},
    // clang-format on
};

// What is missing in a list and may be, and why.
const struct Exception {
    const char* list;
    const char* thing;
    const char* reason;
} exceptions[] = {
    // clang-format off
    {"test", "style/filerewrite.cpp",             "tst_widgetstyle_rewrite and tst_widgetstyle_replace see each of its steps"},
    {"test", "style/keptpictures.cpp",            "tst_cost counts how often a picture is cut"},
    {"test", "style/xmlpiece.cpp",                "a part of xmlguard: tst_xmlguard"},
    {"test", "widgets/celltext.cpp",              "a part of the label: tst_label_pixels"},
    {"test", "widgets/characterlayout.cpp",       "a part of the label: tst_label_wrapping"},
    {"test", "widgets/heldupdates.cpp",           "tst_cost counts the repaints of a touch"},
    {"test", "widgets/painting.cpp",              "in the painted expectations of all classes that use it"},
    {"test", "widgets/shapedtext.cpp",            "in the painted expectations of label and button"},
    {"test", "pages/comboboxrow.cpp",             "a part of the combo box: tst_combobox_signals and tst_combobox_nesting"},
    {"test", "pages/pagelayout.cpp",              "a part of the list: tst_pagelistwidgetitemarea"},
    {"test", "parm/parmpattern.cpp",              "what the four fields share, in the tests of each"},
    {"test", "keypad/keypadtype.cpp",             "each type in tst_softkeypad, tst_softkeypad_range and tst_keypadedit"},
    {"test", "accessibility/accessiblefactory.cpp", "tst_accessible asks it as assistive technology does"},
    {"test", "accessibility/accessiblerow.cpp",   "the table behind it: tst_accessible"},

    {"reference",  "CParmField",                  "documented with the fields"},

    {"gallery", "CParmField",                     "holds an enumeration only"},
    {"gallery", "CAbstractKeyPad",                "the base of the grids"},
    {"gallery", "CGenKeyPad",                     "in the keypads of the entry screen"},
    {"gallery", "CHexKeyPad",                     "in the keypads of the entry screen"},
    {"gallery", "CNumKeyPad",                     "in the keypads of the entry screen"},
    {"gallery", "CKeyButton",                     "in the keypads of the entry screen"},
    {"gallery", "CKeyPadEdit",                    "in the keypads of the entry screen"},
    {"gallery", "CSoftKeyPad",                    "what CKeyPadFactory opens on the entry screen"},
    {"gallery", "CPageBar",                       "in the page widget and the lists"},
    {"gallery", "CPageListWidgetItemArea",        "in the lists"},
    {"gallery", "CDialog",                        "an empty frame until an application fills it"},
    {"gallery", "CGraphicsView",                  "an empty frame until an application fills it"},

    {"Designer", "CParmField",                    "no widget"},
    {"Designer", "CWidgetStyle",                  "no widget"},
    {"Designer", "KQWidgetStack",                 "no widget"},
    {"Designer", "CKeyPadFactory",                "no widget"},
    {"Designer", "CHotplugWatcher",               "no widget"},
    {"Designer", "QDeviceChangeEvent",            "no widget"},
    {"Designer", "QDeviceWatcher",                "no widget"},

    {"numbers", "resources/images/MISC_PROGCLK_11states.png",    "cut by CClockProgress, by the progress"},
    {"numbers", "resources/images/drop-down.png",                "named in the style sheet of CComboBox"},
    {"numbers", "resources/images/ARROW-BLACK.png",              "for applications, by its path"},
    {"numbers", "resources/images/Forward.png",                  "for applications, by its path"},
    {"numbers", "resources/images/Reload.png",                   "for applications, by its path"},
    {"numbers", "resources/images/Stop.png",                     "for applications, by its path"},
    {"numbers", "resources/images/UTIL_TB_BKGROUND.png",         "for applications, by its path"},
    {"numbers", "resources/images/back.png",                     "for applications, by its path"},
    {"numbers", "resources/images/backlight.png",                "for applications, by its path"},
    {"numbers", "resources/images/checkbox_3states.png",         "for applications, by its path"},
    {"numbers", "resources/images/fileopen.png",                 "for applications, by its path"},
    {"numbers", "resources/images/group-background_120X30.png",  "for applications, by its path"},
    {"numbers", "resources/images/main-area_selection.png",      "for applications, by its path"},
    {"numbers", "resources/images/menuentry_top.png",            "for applications, by its path"},
    {"numbers", "resources/images/next_page.png",                "for applications, by its path"},
    {"numbers", "resources/images/prev_page.png",                "for applications, by its path"},
    {"numbers", "resources/images/security.png",                 "for applications, by its path"},
    {"numbers", "resources/images/spin_minus.png",               "for applications, by its path"},
    {"numbers", "resources/images/spin_plus.png",                "for applications, by its path"},
    {"numbers", "resources/images/wireless-connected.png",       "for applications, by its path"},
    {"numbers", "resources/images/zoom.png",                     "for applications, by its path"},
    {"numbers", "resources/images/zoom_in.png",                  "for applications, by its path"},
    {"numbers", "resources/images/zoom_out.png",                 "for applications, by its path"},

    {"looks", "resources/images/group-background_120X30.png",    "one plain background, without states and signs"},
    {"looks", "resources/images/main-area_selection.png",        "one plain background, without states and signs"},

    {"enumeration", "style/widgetstyle.h: LockStatus",   "one picture, whatever the number"},
    {"enumeration", "style/widgetstyle.h: PageBarType",  "horizontal, and any other is vertical"},
    {"enumeration", "widgets/label.h: WrapMode",         "by characters, and any other by words"},
    {"enumeration", "keypad/keycodes.h: KeyPadKey",      "codes beside those of Qt, not numbers of rows"},
    {"enumeration", "keypad/numkeypad.h: Mode",          "two that restrict the keys, and any other does not"},
    // clang-format on
};

const int listCount = sizeof lists / sizeof lists[0];
const int exceptionCount = sizeof exceptions / sizeof exceptions[0];

const Exception* exceptionOf(const List& list, const QString& thing)
{
    for (int i = 0; i < exceptionCount; ++i) {
        if (qstrcmp(exceptions[i].list, list.name) == 0 &&
            thing == QLatin1String(exceptions[i].thing))
            return &exceptions[i];
    }
    return nullptr;
}

const List* listOf(const Exception& exception)
{
    for (int i = 0; i < listCount; ++i) {
        if (qstrcmp(exception.list, lists[i].name) == 0)
            return &lists[i];
    }
    return nullptr;
}

} // namespace

class tst_complete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsForgotten_data();
    void nothingIsForgotten();
    void listsLookAtEverything_data();
    void listsLookAtEverything();
    void exceptionsAreOfUse_data();
    void exceptionsAreOfUse();
};

void tst_complete::nothingIsForgotten_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<QString>("thing");
    for (int i = 0; i < listCount; ++i) {
        const QStringList things = lists[i].things();
        for (int j = 0; j < things.size(); ++j) {
            const QString row = QLatin1String(lists[i].name) + QLatin1String(" of ") + things.at(j);
            QTest::newRow(qPrintable(row)) << i << things.at(j);
        }
    }
}

void tst_complete::nothingIsForgotten()
{
    QFETCH(int, list);
    QFETCH(QString, thing);
    const QString text =
        QString::fromLatin1("%1 is missing in %2").arg(thing, QLatin1String(lists[list].place));
    QVERIFY2(lists[list].has(thing) || exceptionOf(lists[list], thing), qPrintable(text));
}

// A list that finds nothing to ask for would never fail.
void tst_complete::listsLookAtEverything_data()
{
    QTest::addColumn<int>("list");
    for (int i = 0; i < listCount; ++i)
        QTest::newRow(lists[i].name) << i;
}

void tst_complete::listsLookAtEverything()
{
    QFETCH(int, list);
    const int count = static_cast<int>(lists[list].things().size());
    QVERIFY2(count >= lists[list].fewest, qPrintable(QString::number(count)));
    QVERIFY(!lists[list].has(QLatin1String("fuzz/nonesuch.cpp")));
}

// An exception goes with what it is for, and when that is listed after all.
void tst_complete::exceptionsAreOfUse_data()
{
    QTest::addColumn<int>("exception");
    for (int i = 0; i < exceptionCount; ++i) {
        const QByteArray row = QByteArray(exceptions[i].list) + " of " + exceptions[i].thing;
        QTest::newRow(row.constData()) << i;
    }
}

void tst_complete::exceptionsAreOfUse()
{
    QFETCH(int, exception);
    const List* const list = listOf(exceptions[exception]);
    QVERIFY(list);
    const QString thing = QLatin1String(exceptions[exception].thing);
    QVERIFY(list->things().contains(thing));
    QVERIFY(!list->has(thing));
    QVERIFY(qstrlen(exceptions[exception].reason) > 0);
}

QTEST_MAIN(tst_complete)
#include "tst_complete.moc"
