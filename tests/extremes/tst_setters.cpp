#include "extremes/calls.h"
#include "hotplug/devicewatcher.h"
#include "hotplug/hotplugwatcher.h"
#include "samples.h"
#include "support/testing.h"
#include "widgets/widgetstack.h"

#include <QDir>
#include <QPointer>
#include <QRegularExpression>
#include <random>

using extremes::Call;
using extremes::Table;

namespace
{

const char* const folders[] = {"style", "widgets", "pages", "parm", "keypad", "hotplug"};

// Public functions that are not in the table, and why.
const struct {
    const char* function;
    const char* reason;
} exceptions[] = {
    {"CWidgetStyle::initialize/1", "takes a file: see tst_widgetstyle_badfiles"},
    {"CWidgetStyle::setWidgetStyle/2", "takes a file: see tst_widgetstyle_badfiles"},
    {"CWidgetStyle::setStyle/2", "takes an element: see tst_widgetstyle_rewrite"},
    {"CHotplugWatcher::detectDevice/0", "asks the machine: see tst_hotplugwatcher_inventory"},
    {"CWidgetStyle::isDeviceAvailable/1", "changes nothing"},
    {"KQWidgetStack::push/1", "belongs to the process: see stackWithNullEntries()"},
    {"CGenKeyPad::eventFilter/2", "Qt calls it"},
    {"CHexKeyPad::eventFilter/2", "Qt calls it"},
    {"CNumKeyPad::eventFilter/2", "Qt calls it"},
    {"CGenKeyPad::appendKey/1", "needs a key: see tst_keygrid"},
    {"CHexKeyPad::appendKey/1", "needs a key: see tst_keygrid"},
    {"CNumKeyPad::appendKey/1", "needs a key: see tst_keygrid"},
    {"CGenKeyPad::keyPress/1", "needs a key: see tst_keygrid"},
    {"CHexKeyPad::keyPress/1", "needs a key: see tst_keygrid"},
    {"CNumKeyPad::keyPress/1", "needs a key: see tst_keygrid"},
};

// What Qt says of a size that no widget can have. It names the widget and takes the next size that
// it can: a developer is to see that, so the library does not keep it from being said.
//
// The platform of the tests has no windows to raise, and says that, too.
const char* const expectedWarnings[] = {
    "QWidget::setMinimumSize: (",
    "QWidget::setMaximumSize: (",
    "This plugin does not support ",
};

const char* const paintWarnings[] = {
    "QWidget::paintEngine: ",
    "QPainter::",
};

template <size_t Count>
bool startsWithOneOf(const QString& text, const char* const (&starts)[Count])
{
    for (const char* start : starts) {
        if (text.startsWith(QLatin1String(start)))
            return true;
    }
    return false;
}

/// Whether a window would need more memory than Qt gives to a picture. It has none, and Qt says so
/// when it is painted.
bool isBeyondMemory(const QWidget* widget)
{
    const int widest = 32767;
    return widget && (widget->width() > widest || widget->height() > widest);
}

bool isExpected(const QString& text, const QWidget* widget)
{
    return startsWithOneOf(text, expectedWarnings) ||
           (isBeyondMemory(widget) && startsWithOneOf(text, paintWarnings));
}

QStringList unexpected(const QStringList& warnings, const QWidget* widget)
{
    QStringList left;
    for (int i = 0; i < warnings.size(); ++i) {
        if (!isExpected(warnings.at(i), widget))
            left.append(warnings.at(i));
    }
    return left;
}

/// Paints the part of \a widget that a screen could show.
void paint(QObject* object)
{
    QWidget* const widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return;
    const QRect part(0, 0, 400, 300);
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    widget->render(&image, QPoint(), part);
}

/// A sample that leaves the widget stack before it dies, as every managed widget is to. Pages that
/// it has given back die with it.
class Sample
{
public:
    explicit Sample(const QString& name) : m_widget(samples::create(name))
    {
        const QList<QWidget*> parts = m_widget->findChildren<QWidget*>();
        for (int i = 0; i < parts.size(); ++i)
            m_parts.append(parts.at(i));
    }

    ~Sample()
    {
        KQWidgetStack::instance()->popAll();
        delete m_widget;
        for (int i = 0; i < m_parts.size(); ++i)
            delete m_parts.at(i).data();
    }

    QWidget* widget() const
    {
        return m_widget;
    }

private:
    QWidget* const m_widget;
    QList<QPointer<QWidget>> m_parts;

    Q_DISABLE_COPY(Sample)
};

/// A shown list of gigabytes: Qt 6 has a picture for all of it and fills that, for minutes.
void hideGiantLists()
{
    const qint64 largest = 4000 * 4000;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (int i = 0; i < windows.size(); ++i) {
        QWidget* const window = windows.at(i);
        if (window->windowType() == Qt::Popup &&
            static_cast<qint64>(window->width()) * window->height() > largest)
            window->hide();
    }
}

void settle()
{
    hideGiantLists();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// What a header declares in its public parts that changes an object, as "CLabel::setText/1".
class Declarations
{
public:
    explicit Declarations(const QString& path)
    {
        const QStringList lines =
            QString::fromUtf8(testing::contentOf(path)).split(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i)
            read(lines.at(i));
    }

    QStringList functions;

private:
    void read(const QString& indented)
    {
        const QString line = indented.trimmed();
        static const QRegularExpression begin(QLatin1String("^class CWIDGET_EXPORT (\\w+)"));
        static const QRegularExpression access(
            QLatin1String("^(public|protected|private|Q_SIGNALS)( Q_SLOTS)?:$"));
        if (begin.match(line).hasMatch())
            m_class = begin.match(line).captured(1);
        else if (indented == QLatin1String("};"))
            m_public = false;
        else if (access.match(line).hasMatch())
            m_public = access.match(line).captured(1) == QLatin1String("public");
        else if (m_public && !line.isEmpty() && !line.startsWith(QLatin1String("//")))
            gather(line);
    }

    /// Declarations may go over several lines.
    void gather(const QString& line)
    {
        m_statement += line + QLatin1Char(' ');
        if (!line.endsWith(QLatin1Char(';')) && !line.endsWith(QLatin1Char('}')))
            return;
        static const QRegularExpression declaration(
            QLatin1String("^((virtual|static|Q_INVOKABLE) )*(void|bool) (\\w+)\\(([^()]*)\\)"
                          "( override)?; $"));
        const QRegularExpressionMatch match = declaration.match(m_statement);
        if (match.hasMatch())
            functions.append(QString::fromLatin1("%1::%2/%3")
                                 .arg(m_class, match.captured(4))
                                 .arg(count(match.captured(5))));
        m_statement.clear();
    }

    static int count(const QString& arguments)
    {
        return arguments.isEmpty() ? 0 : static_cast<int>(arguments.count(QLatin1Char(','))) + 1;
    }

    QString m_class;
    QString m_statement;
    bool m_public = false;
};

QStringList declaredFunctions()
{
    QStringList functions;
    for (const char* folder : folders) {
        const QDir headers(QLatin1String(CWIDGET_SOURCE_DIR) + QLatin1Char('/') +
                           QLatin1String(folder));
        const QStringList names = headers.entryList(QStringList(QLatin1String("*.h")));
        for (int i = 0; i < names.size(); ++i) {
            if (!names.at(i).endsWith(QLatin1String("_p.h")))
                functions += Declarations(headers.filePath(names.at(i))).functions;
        }
    }
    return functions;
}

QStringList tableFunctions(const Table& table)
{
    QStringList functions;
    for (int i = 0; i < table.functions.size(); ++i)
        functions.append(QString::fromLatin1(table.functions.at(i)));
    for (const auto& exception : exceptions)
        functions.append(QLatin1String(exception.function));
    return functions;
}

} // namespace

/// Every public function that changes an object, with the extremes of what it takes.
class tst_setters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFunctionIsInTheTable();
    void paintedAfterEach_data();
    void paintedAfterEach();
    void oneAfterTheOther_data();
    void oneAfterTheOther();
    void watcherInAnyOrder();
    void hotplugWatcherWithAnyText();
    void stackWithNullEntries();

private:
    QList<Call> callsOf(const QObject* object) const;
    void makeEach(QObject* object, const char* owner) const;

    Table m_table;
};

void tst_setters::initTestCase()
{
    m_table = extremes::everyFunction();
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

void tst_setters::everyFunctionIsInTheTable()
{
    QStringList declared = declaredFunctions();
    QStringList listed = tableFunctions(m_table);
    declared.sort();
    listed.sort();
    QVERIFY(declared.size() > 100); // else the headers are not read as they are written
    for (int i = 0; i < declared.size(); ++i)
        QVERIFY2(listed.removeOne(declared.at(i)), qPrintable(declared.at(i)));
    QVERIFY2(listed.isEmpty(), qPrintable(listed.join(QLatin1Char(' '))));
}

void tst_setters::paintedAfterEach_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i);
}

/// The calls of the class and of its bases.
QList<Call> tst_setters::callsOf(const QObject* object) const
{
    QList<Call> calls;
    for (int i = 0; i < m_table.calls.size(); ++i) {
        if (object->inherits(m_table.calls.at(i).owner.constData()))
            calls.append(m_table.calls.at(i));
    }
    return calls;
}

void tst_setters::paintedAfterEach()
{
    QFETCH(QString, name);
    const QList<Call> calls = callsOf(Sample(name).widget());
    QVERIFY(!calls.isEmpty());
    for (int i = 0; i < calls.size(); ++i) {
        testing::Messages messages;
        const Sample sample(name);
        calls.at(i).make(sample.widget());
        settle();
        paint(sample.widget());
        const QStringList warnings = unexpected(messages.warnings(), sample.widget());
        QVERIFY2(warnings.isEmpty(),
                 (calls.at(i).text.left(200) + ": " + warnings.value(0).toUtf8()).constData());
    }
}

void tst_setters::oneAfterTheOther_data()
{
    paintedAfterEach_data();
}

/// The same calls in an order without sense, upon one object.
void tst_setters::oneAfterTheOther()
{
    QFETCH(QString, name);
    const int steps = 200;
    for (unsigned int seed = 1; seed <= 2; ++seed) {
        std::mt19937 random(seed);
        testing::Messages messages;
        const Sample sample(name);
        const QList<Call> calls = callsOf(sample.widget());
        for (int step = 0; step < steps; ++step) {
            const Call& call = calls.at(static_cast<int>(random() % calls.size()));
            call.make(sample.widget());
            if (step % 10 == 0) {
                settle();
                paint(sample.widget());
            }
            const QStringList warnings = unexpected(messages.warnings(), sample.widget());
            QVERIFY2(warnings.isEmpty(),
                     qPrintable(QString::fromLatin1("seed %1, step %2, %3: %4")
                                    .arg(seed)
                                    .arg(step)
                                    .arg(QString::fromLatin1(call.text.left(200)))
                                    .arg(warnings.value(0))));
            messages.clear();
        }
    }
}

void tst_setters::makeEach(QObject* object, const char* owner) const
{
    int made = 0;
    for (int i = 0; i < m_table.calls.size(); ++i) {
        if (m_table.calls.at(i).owner != owner)
            continue;
        m_table.calls.at(i).make(object);
        settle();
        ++made;
    }
    QVERIFY(made > 0);
}

/// Warns of nothing but what the kernel refuses.
void tst_setters::watcherInAnyOrder()
{
    QDeviceWatcher watcher;
    makeEach(&watcher, "QDeviceWatcher");
    makeEach(&watcher, "QDeviceWatcher");
    QVERIFY(!watcher.isRunning());
}

void tst_setters::hotplugWatcherWithAnyText()
{
    CHotplugWatcher watcher;
    makeEach(&watcher, "CHotplugWatcher");
    makeEach(nullptr, "CWidgetStyle");
    QCOMPARE(CWidgetStyle::getUSBDir().size(), 10000);
}

void tst_setters::stackWithNullEntries()
{
    KQWidgetStack* const stack = KQWidgetStack::instance();
    stack->popAll();
    stack->push(nullptr);
    stack->push(nullptr);
    QCOMPARE(stack->size(), 2);
    QVERIFY(!stack->top());
    QVERIFY(!stack->pop());
    stack->popAll();
}

QTEST_MAIN(tst_setters)
#include "tst_setters.moc"
