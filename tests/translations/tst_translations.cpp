#include "support/rows.h"
#include "support/testing.h"

#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/numkeypad.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "style/qtcompat.h"
#include "widgets/checkbox.h"
#include "widgets/label.h"

#include <QApplication>
#include <QDomDocument>
#include <QLayout>
#include <QProcess>
#include <QScopedPointer>
#include <QTranslator>

namespace
{

const char folder[] = CWIDGET_SOURCE_DIR "/translations/";
const int keyBorder = 2;  // pixels of a key's picture at either side
const int pageSpace = 98; // pixels between the arrows of a page bar
const int pageTextSize = 14;

// What the keys and the page bar show, by the languages.
const struct Language {
    const char* name; // of the file; null without a translation
    const char* del;
    const char* delAll;
    const char* apply;
    const char* shift;
    const char* caps;
    const char* symbol;
    const char* space;
    const char* page;
} languages[] = {
    // clang-format off
    {nullptr, "Del",  "Del All", "Apply",  "Shift", "Caps", "Symbol",  "SPACE",     "Page %1 of %2"},
    {"de",    "Entf", "Leeren",  "Fertig", "Umsch", "Fest", "Symbole", "Leertaste", "Seite %1/%2"},
    {"zh_CN", "删除",  "清空",     "确定",    "上档",   "大写",  "符号",     "空格",       "第 %1/%2 页"},
    // clang-format on
};

const int languageCount = sizeof languages / sizeof languages[0];

/// The application in a language while it lives.
class Spoken
{
public:
    explicit Spoken(const Language& language)
    {
        const QString file = QLatin1String(CWIDGET_BINARY_DIR "/translations/quorlin-cwidget_") +
                             QLatin1String(language.name);
        if (language.name && !m_translator.load(file))
            qFatal("no translation %s", language.name);
        if (language.name)
            QCoreApplication::installTranslator(&m_translator);
        QCoreApplication::processEvents();
    }

    ~Spoken()
    {
        QCoreApplication::removeTranslator(&m_translator);
        QCoreApplication::processEvents();
    }

private:
    QTranslator m_translator;
};

CKeyButton* keyOf(QWidget* grid, int code)
{
    const QList<CKeyButton*> keys = grid->findChildren<CKeyButton*>();
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->key() == code)
            return keys.at(i);
    }
    return nullptr;
}

/// The captions of \a grid that a language has of its own; those that it lacks are empty.
QStringList captionsOf(QWidget* grid)
{
    const int codes[] = {Qt::Key_Delete,   Key_DelAll, Key_Apply,    Qt::Key_Shift,
                         Qt::Key_CapsLock, Key_Symbol, Qt::Key_Space};
    QStringList captions;
    for (size_t i = 0; i < sizeof codes / sizeof codes[0]; ++i) {
        const CKeyButton* const key = keyOf(grid, codes[i]);
        captions.append(key ? key->getText() : QString());
    }
    return captions;
}

QStringList captionsOf(const Language& language)
{
    const char* const texts[] = {language.del,  language.delAll, language.apply, language.shift,
                                 language.caps, language.symbol, language.space};
    QStringList captions;
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i)
        captions.append(QString::fromUtf8(texts[i]));
    return captions;
}

/// The texts of a file of translations, each "context: source", and how many of them are done.
QStringList sourcesOf(const QByteArray& content, int* finished)
{
    QDomDocument document;
    document.setContent(content);
    QStringList sources;
    *finished = 0;
    const QDomNodeList messages = document.elementsByTagName(QLatin1String("message"));
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QDomElement translation = message.firstChildElement(QLatin1String("translation"));
        const QDomElement context = message.parentNode().firstChildElement(QLatin1String("name"));
        sources.append(context.text() + QLatin1String(": ") +
                       message.firstChildElement(QLatin1String("source")).text());
        *finished +=
            !translation.hasAttribute(QLatin1String("type")) && !translation.text().isEmpty() ? 1
                                                                                              : 0;
    }
    sources.sort();
    return sources;
}

QByteArray fileOf(const char* language)
{
    const QString suffix = language ? QLatin1Char('_') + QString::fromLatin1(language) : QString();
    return testing::contentOf(QLatin1String(folder) +
                              QString::fromLatin1("quorlin-cwidget%1.ts").arg(suffix));
}

/// Counts how often it is told to take over texts.
class Told : public CWidget
{
public:
    explicit Told(QWidget* parent) : CWidget(parent), m_count(0)
    {
    }

    int count() const
    {
        return m_count;
    }

    void translate() override
    {
        ++m_count;
        CWidget::translate();
    }

private:
    int m_count;
};

void addLanguages()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < languageCount; ++i)
        QTest::newRow(languages[i].name ? languages[i].name : "none") << i;
}

/// Which widgets below \a parent stick out of their own parents, as text.
QString outside(const QWidget* parent)
{
    const QList<QWidget*> children = parent->findChildren<QWidget*>();
    for (int i = 0; i < children.size(); ++i) {
        const QWidget* const child = children.at(i);
        if (child->isWindow() || !child->isVisible())
            continue;
        const QRect room = child->parentWidget()->rect();
        if (!room.contains(child->geometry()) && !qobject_cast<const CAbstractKeyPad*>(child))
            return QString::fromLatin1("%1 at %2 of %3")
                .arg(QString::fromLatin1(child->metaObject()->className()))
                .arg(child->x())
                .arg(room.width());
    }
    return QString();
}

} // namespace

class tst_translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void templateHasEveryText();
    void languagesAreComplete_data();
    void languagesAreComplete();
    void keysAreCaptioned_data();
    void keysAreCaptioned();
    void captionsFitTheirKeys_data();
    void captionsFitTheirKeys();
    void pageTextFitsBetweenTheArrows_data();
    void pageTextFitsBetweenTheArrows();
    void changeOfTheLanguageReachesWidgets_data();
    void changeOfTheLanguageReachesWidgets();
    void changedCaptionsStay();
    void shiftAndSymbolsSurviveTheChange();
    void translateIsCalledOncePerWidget();
    void nothingLeavesItsWidgetFromRightToLeft_data();
    void nothingLeavesItsWidgetFromRightToLeft();
};

void tst_translations::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    QVERIFY2(!qtcompat::fontFamilies(QFontDatabase::SimplifiedChinese).isEmpty(),
             "no font with Chinese letters; ./test.sh installs one");
}

void tst_translations::templateHasEveryText()
{
    const testing::TemporaryFolder temporary;
    const QString file = temporary.path() + QLatin1String("/now.ts");
    QStringList arguments;
    const QStringList folders = QString::fromLatin1("style widgets pages parm keypad accessibility")
                                    .split(QLatin1Char(' '));
    for (int i = 0; i < folders.size(); ++i)
        arguments << QLatin1String(CWIDGET_SOURCE_DIR "/") + folders.at(i);
    QProcess lupdate;
    lupdate.start(QLatin1String(LUPDATE), arguments << QLatin1String("-ts") << file);
    QVERIFY(lupdate.waitForFinished(60000));
    int finished = 0;
    const QStringList now = sourcesOf(testing::contentOf(file), &finished);
    QVERIFY(now.size() > 8);
    QCOMPARE(sourcesOf(fileOf(nullptr), &finished), now);
    QCOMPARE(finished, 0);
    QVERIFY(fileOf(nullptr).contains("<extracomment>"));
}

void tst_translations::languagesAreComplete_data()
{
    addLanguages();
}

void tst_translations::languagesAreComplete()
{
    QFETCH(int, index);
    if (!languages[index].name)
        return;
    int finished = 0;
    const QStringList wanted = sourcesOf(fileOf(nullptr), &finished);
    QCOMPARE(sourcesOf(fileOf(languages[index].name), &finished), wanted);
    QCOMPARE(finished, static_cast<int>(wanted.size()));
}

void tst_translations::keysAreCaptioned_data()
{
    addLanguages();
}

void tst_translations::keysAreCaptioned()
{
    QFETCH(int, index);
    const Spoken spoken(languages[index]);
    CGenKeyPad general;
    CHexKeyPad hexadecimal;
    QCOMPARE(captionsOf(&general), captionsOf(languages[index]));
    QCOMPARE(captionsOf(&hexadecimal).mid(0, 3), captionsOf(languages[index]).mid(0, 3));
    QCOMPARE(keyOf(&general, Qt::Key_Q)->getText(), QString::fromLatin1("q"));
    QCOMPARE(keyOf(&general, Key_Point)->getText(), QString::fromLatin1("."));
}

void tst_translations::captionsFitTheirKeys_data()
{
    addLanguages();
}

void tst_translations::captionsFitTheirKeys()
{
    QFETCH(int, index);
    const Spoken spoken(languages[index]);
    const CGenKeyPad general;
    const CHexKeyPad hexadecimal;
    const CNumKeyPad numeric(CNumKeyPad::SignedMode);
    const CAbstractKeyPad* const grids[] = {&general, &hexadecimal, &numeric};
    int measured = 0;
    for (size_t i = 0; i < sizeof grids / sizeof grids[0]; ++i) {
        const QList<CKeyButton*> keys = grids[i]->findChildren<CKeyButton*>();
        for (int j = 0; j < keys.size(); ++j, ++measured) {
            const QFontMetrics metrics(keys.at(j)->font());
            const int width = testcompat::textWidth(metrics, keys.at(j)->getText());
            const QString message = QString::fromUtf8("%1: %2 pixels in %3")
                                        .arg(keys.at(j)->getText())
                                        .arg(width)
                                        .arg(keys.at(j)->width());
            QVERIFY2(width <= keys.at(j)->width() - 2 * keyBorder, qPrintable(message));
            QVERIFY2(metrics.height() <= keys.at(j)->height(), qPrintable(message));
        }
    }
    QVERIFY(measured > 80);
}

void tst_translations::pageTextFitsBetweenTheArrows_data()
{
    addLanguages();
}

void tst_translations::pageTextFitsBetweenTheArrows()
{
    QFETCH(int, index);
    const Spoken spoken(languages[index]);
    const QString text = CPageBar::tr("Page %1 of %2");
    QCOMPARE(text, QString::fromUtf8(languages[index].page));
    CPageBar bar;
    QFont font = bar.font();
    font.setPixelSize(pageTextSize);
    const int width = testcompat::textWidth(QFontMetrics(font), text.arg(10).arg(12));
    QVERIFY2(width <= pageSpace, qPrintable(QString::number(width)));
}

void tst_translations::changeOfTheLanguageReachesWidgets_data()
{
    addLanguages();
}

void tst_translations::changeOfTheLanguageReachesWidgets()
{
    QFETCH(int, index);
    QWidget window;
    CPageBar* const bar = new CPageBar(&window);
    bar->setCount(5);
    CSoftKeyPad keypad(CKeyPadFactory::SKP_GENERAL);
    const QImage english = testing::render(bar);
    {
        const Spoken spoken(languages[index]);
        CPageBar made;
        made.setCount(5);
        CWIDGET_COMPARE_IMAGES(testing::render(bar), testing::render(&made));
        QCOMPARE(testing::render(bar) == english, index == 0);
        QCOMPARE(captionsOf(&keypad), captionsOf(languages[index]));
    }
    CWIDGET_COMPARE_IMAGES(testing::render(bar), english);
    QCOMPARE(captionsOf(&keypad), captionsOf(languages[0]));
}

void tst_translations::changedCaptionsStay()
{
    CGenKeyPad grid;
    CKeyButton* const own = new CKeyButton(&grid);
    own->setKey(Key_Apply);
    own->setKeyText(QLatin1String("Apply"));
    keyOf(&grid, Key_Apply)->setKeyText(QLatin1String("OK"));
    const Spoken spoken(languages[1]);
    QCOMPARE(keyOf(&grid, Key_Apply)->getText(), QString::fromLatin1("OK"));
    QCOMPARE(keyOf(&grid, Qt::Key_Delete)->getText(), QString::fromLatin1("Entf"));
    QCOMPARE(own->getText(), QString::fromLatin1("Apply"));
}

void tst_translations::shiftAndSymbolsSurviveTheChange()
{
    CGenKeyPad grid;
    grid.keyPress(keyOf(&grid, Key_Symbol));
    const Spoken spoken(languages[1]);
    QCOMPARE(keyOf(&grid, Qt::Key_Q)->getText(), QString::fromLatin1("!"));
    QCOMPARE(keyOf(&grid, Key_Symbol)->getText(), QString::fromLatin1("Symbole"));
    QVERIFY(keyOf(&grid, Key_Symbol)->isSelected());
}

void tst_translations::translateIsCalledOncePerWidget()
{
    QWidget window;
    Told outer(&window);
    Told inner(&outer);
    Told innermost(&inner);
    QWidget between(&outer);
    Told apart(&between); // no CWidget calls it
    const Spoken spoken(languages[1]);
    QCOMPARE(outer.count(), 1);
    QCOMPARE(inner.count(), 1);
    QCOMPARE(innermost.count(), 1);
    QCOMPARE(apart.count(), 1);
}

void tst_translations::nothingLeavesItsWidgetFromRightToLeft_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("left to right") << static_cast<int>(Qt::LeftToRight);
    QTest::newRow("right to left") << static_cast<int>(Qt::RightToLeft);
}

void tst_translations::nothingLeavesItsWidgetFromRightToLeft()
{
    QFETCH(int, direction);
    QApplication::setLayoutDirection(static_cast<Qt::LayoutDirection>(direction));
    const QStringList modes = QString::fromLatin1("Off,Auto,Manual").split(QLatin1Char(','));
    QWidget window;
    window.resize(900, 700);
    QVBoxLayout* const layout = new QVBoxLayout(&window);
    CPageWidget* const pages = new CPageWidget(&window);
    pages->addPage(new QWidget);
    pages->setSize(300, 100);
    CParmLabel* const label = new CParmLabel(QLatin1String("Name"), QLatin1String("Value"));
    CParmLineEdit* const edit = new CParmLineEdit(QLatin1String("Name"), QLatin1String("Value"));
    CParmComboBox* const combo = new CParmComboBox(QLatin1String("Name"), modes, QString());
    CParmCheckBox* const check = new CParmCheckBox(QLatin1String("Name"), QLatin1String("on"));
    label->setWidth(300, Proportion2To1);
    edit->setWidth(301, Proportion1To1);
    combo->setWidth(300);
    check->setWidth(300);
    CPageBar* const bar = new CPageBar; // at its first size the arrows need two pixels more
    bar->setSize(220, bar->height());
    QWidget* const widgets[] = {pages, label, edit, combo, check, bar, new CNumKeyPad(nullptr)};
    for (size_t i = 0; i < sizeof widgets / sizeof widgets[0]; ++i) {
        const testing::InRow inRow(i);
        layout->addWidget(widgets[i]);
    }
    CSoftKeyPad keypad(CKeyPadFactory::SKP_GENERAL);
    CPageListWidget list;
    list.setItems(modes + modes + modes);
    window.show();
    keypad.show();
    list.show(0);
    QVERIFY(testcompat::waitForWindow(&window));
    QTest::qWait(30);
    const bool mirrored = direction == Qt::RightToLeft;
    const QList<CLabel*> parts = label->findChildren<CLabel*>();
    QCOMPARE(parts.at(0)->x() > parts.at(1)->x(), mirrored);
    for (size_t i = 0; i < sizeof widgets / sizeof widgets[0]; ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(outside(widgets[i]), QString());
    }
    QCOMPARE(outside(&list), QString());
    QCOMPARE(outside(&keypad), QString());
    list.hide();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(tst_translations)
#include "tst_translations.moc"
