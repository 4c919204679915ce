#include "extremes/touches.h"
#include "hotplug/devicewatcher_p.h"
#include "samples.h"
#include "support/rows.h"
#include "support/testing.h"

#include <QApplication>
#include <QMetaMethod>
#include <QPointer>

namespace
{

const int mostOfOneSignal = 3; // the first, and two that other parts emit

// Signals of the library that no event of a user brings, and why.
const struct {
    const char* signal;
    const char* reason;
} unheard[] = {
    {"CDialog::visible(bool)", "the library does not emit it"},
};

// Beginnings of signals that Qt emits and then goes on with the object: it dies when the event has
// ended.
const char* const later[] = {
    "QLineEdit::",
    "CParmLineEdit::",
    "QTextEdit::",
    "QDialog::", // Qt 6
    "QComboBox::currentIndexChanged(",
    "QComboBox::currentTextChanged(",
};

bool isForLater(const QString& signal)
{
    for (const char* start : later) {
        if (signal.startsWith(QLatin1String(start)))
            return true;
    }
    return false;
}

bool isUnheard(const QString& signal)
{
    for (const auto& row : unheard) {
        if (signal == QLatin1String(row.signal))
            return true;
    }
    return false;
}

bool isOurs(const QObject* object)
{
    return samples::names().contains(QLatin1String(object->metaObject()->className()));
}

QString fullName(const QMetaMethod& signal)
{
    return QLatin1String(signal.enclosingMetaObject()->className()) + QLatin1String("::") +
           QString::fromLatin1(signal.methodSignature());
}

} // namespace

/// Listens to every signal of an object and of those of the library within it, and deletes the
/// object inside one of them.
class Listener : public QObject
{
    Q_OBJECT

public:
    /// \a fatal is the number of the signal that deletes, from 0; -1 for none.
    Listener(QObject* object, int fatal) : m_object(object), m_fatal(fatal), m_later(false)
    {
        listenTo(object);
        const QList<QObject*> parts = object->findChildren<QObject*>();
        for (int i = 0; i < parts.size(); ++i) {
            if (isOurs(parts.at(i)))
                listenTo(parts.at(i));
        }
    }

    QStringList heard() const
    {
        return m_heard;
    }

    /// Sets whether the object dies when the event has ended, whatever the signal.
    void setLater(bool later)
    {
        m_later = later;
    }

public Q_SLOTS:
    void hear()
    {
        const QString signal = fullName(sender()->metaObject()->method(senderSignalIndex()));
        m_heard.append(signal);
        if (m_heard.size() - 1 != m_fatal)
            return;
        if (m_later || isForLater(signal))
            m_object->deleteLater();
        else
            delete m_object.data();
    }

private:
    void listenTo(QObject* object)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("hear()"));
        for (int i = 0; i < object->metaObject()->methodCount(); ++i) {
            const QMetaMethod signal = object->metaObject()->method(i);
            if (signal.methodType() == QMetaMethod::Signal && signal.name() != "destroyed")
                connect(object, signal, this, slot);
        }
    }

    QPointer<QObject> m_object;
    int m_fatal;
    bool m_later;
    QStringList m_heard;
};

class tst_deletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void insideEachSignal_data();
    void insideEachSignal();
    void watcherInsideItsSignals();
    void everySignalWasHeard();

private:
    QStringList run(const QString& name, int fatal);

    QSet<QString> m_heard;
};

void tst_deletion::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    // A third touch selects a whole line, or not: the same each time, however slow the machine is.
    QApplication::setDoubleClickInterval(60000);
}

void tst_deletion::insideEachSignal_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i);
}

/// Does everything there is to do to a new sample, and returns what it emitted.
QStringList tst_deletion::run(const QString& name, int fatal)
{
    const QPointer<QWidget> widget(samples::create(name));
    Listener listener(widget.data(), fatal);
    widget->show();
    QCoreApplication::processEvents();
    void (*const steps[])(QWidget*) = {touches::touchAll, touches::typeAll, touches::changeAll};
    for (auto step : steps) {
        listener.setLater(step == touches::typeAll); // after a key Qt's own controls go on
        if (widget)
            step(widget.data());
        QCoreApplication::processEvents();
    }
    delete widget.data();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return listener.heard();
}

void tst_deletion::insideEachSignal()
{
    QFETCH(QString, name);
    const QStringList heard = run(name, -1);
    QHash<QString, int> counts;
    for (int i = 0; i < heard.size(); ++i) {
        m_heard.insert(heard.at(i));
        if (++counts[heard.at(i)] > mostOfOneSignal)
            continue;
        const QStringList again = run(name, i);
        QVERIFY2(again.size() > i, qPrintable(heard.at(i)));
        QCOMPARE(again.mid(0, i + 1), heard.mid(0, i + 1));
    }
}

void tst_deletion::watcherInsideItsSignals()
{
    const char* const lines[] = {"add@/devices/x", "remove@/devices/x", "change@/devices/x"};
    for (const char* line : lines) {
        const testing::InRow inRow(line);
        QPointer<QDeviceWatcher> watcher(new QDeviceWatcher);
        QDeviceWatcherPrivate source(watcher.data());
        const Listener listener(watcher.data(), 0);
        source.parseLine(line);
        QCoreApplication::processEvents();
        QCOMPARE(listener.heard().size(), 1);
        QVERIFY(!watcher);
        m_heard.insert(listener.heard().first());
    }
}

/// Else nothing has been shown about a signal.
void tst_deletion::everySignalWasHeard()
{
    QStringList missing;
    const QStringList names = samples::names() << QLatin1String("QDeviceWatcher");
    for (int i = 0; i < names.size(); ++i) {
        const QScopedPointer<QObject> object(
            names.at(i) == QLatin1String("QDeviceWatcher")
                ? new QDeviceWatcher
                : static_cast<QObject*>(samples::create(names.at(i))));
        const QMetaObject* const meta = object->metaObject();
        for (int j = 0; j < meta->methodCount(); ++j) {
            const QString signal = fullName(meta->method(j));
            const bool isOwn = names.contains(signal.section(QLatin1String("::"), 0, 0));
            if (isOwn && meta->method(j).methodType() == QMetaMethod::Signal &&
                m_heard.contains(signal) == isUnheard(signal))
                missing.append(signal);
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char(' '))));
}

QTEST_MAIN(tst_deletion)
#include "tst_deletion.moc"
