#include "monkey.h"
#include "panel.h"
#include "support/testing.h"
#include "widgets/widgetstack.h"

#include <QTimer>
#include <cstdio>
#include <unistd.h>

namespace
{

const int steps = 300;
const unsigned int seed = 7;

/// What the process writes to its standard error while this lives.
class Errors
{
public:
    Errors() : m_file(tmpfile()), m_before(dup(STDERR_FILENO))
    {
        dup2(fileno(m_file), STDERR_FILENO);
    }

    ~Errors()
    {
        dup2(m_before, STDERR_FILENO);
        close(m_before);
        fclose(m_file);
    }

    QString text() const
    {
        QByteArray bytes(4096, 0);
        rewind(m_file);
        bytes.truncate(static_cast<int>(fread(bytes.data(), 1, 4096, m_file)));
        return QString::fromLocal8Bit(bytes);
    }

private:
    FILE* const m_file;
    const int m_before;

    Q_DISABLE_COPY(Errors)
};

} // namespace

/// What is wrong with a panel, whenever the event loop has time.
class Fault : public QObject
{
    Q_OBJECT

public:
    Fault(Panel* panel, const char* slot) : m_panel(panel)
    {
        connect(&m_timer, SIGNAL(timeout()), this, slot);
        m_timer.start(0);
    }

public Q_SLOTS:
    void warn()
    {
        qWarning("the panel is on fire");
    }

    void grow()
    {
        new QObject(m_panel);
    }

private:
    Panel* m_panel;
    QTimer m_timer;
};

/// The monkey notices what it is meant to find.
class tst_gallery_monkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void soundPanelPasses();
    void warningFails();
    void growthFails();

private:
    testing::TemporaryFolder m_folder;
    Panel* m_panel;
};

void tst_gallery_monkey::init()
{
    const QByteArray style = testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR) +
                                                QLatin1String("/style/widget-style.xml"));
    const QString path = m_folder.write(QLatin1String("widget-style.xml"), style);
    QVERIFY(CWidgetStyle::initialize(path));
    m_panel = new Panel(path);
    m_panel->showScreen(Panel::screenNames().first());
    m_panel->show();
}

void tst_gallery_monkey::cleanup()
{
    KQWidgetStack::instance()->popAll();
    delete m_panel;
}

void tst_gallery_monkey::soundPanelPasses()
{
    const Errors errors;
    const bool passes = Monkey(m_panel, steps, seed).run();
    QCOMPARE(errors.text(), QString());
    QVERIFY(passes);
}

void tst_gallery_monkey::warningFails()
{
    const Errors errors;
    const Fault fault(m_panel, SLOT(warn()));
    QVERIFY(!Monkey(m_panel, steps, seed).run());
    const QString text = errors.text();
    QVERIFY2(text.startsWith(QLatin1String("monkey: seed 7, step ")), qPrintable(text));
    QVERIFY2(text.endsWith(QLatin1String(": the panel is on fire\n")), qPrintable(text));
}

void tst_gallery_monkey::growthFails()
{
    const Errors errors;
    const Fault fault(m_panel, SLOT(grow()));
    QVERIFY(!Monkey(m_panel, steps, seed).run());
    QCOMPARE(errors.text(), QString::fromLatin1("monkey: seed 7, step 300: the panel has grown\n"));
}

QTEST_MAIN(tst_gallery_monkey)
#include "tst_gallery_monkey.moc"
