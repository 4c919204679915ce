#include "keypad/genkeypad.h"
#include "keypad/keypadedit.h"
#include "support/costs.h"
#include "support/filereads.h"
#include "support/keypads.h"

#include <QAbstractTextDocumentLayout>
#include <QPixmapCache>
#include <QSignalSpy>
#include <QTextDocument>

// What a keypad may cost, counted in events, files and pictures and not in time.

using testing::Cost;
using testing::keyOf;

namespace
{

const int keys = 46;

// clang-format off

/// The keys, the grid, the field with its title strip and its inner parts, and the dialog.
const Cost opening[] = {
    {"polishes",       QEvent::Polish,        keys, keys + 9},
    {"applied sheets", QEvent::StyleChange,   1,    7},
    {"changed fonts",  QEvent::FontChange,    keys, keys + 9},
    {"resizes",        QEvent::Resize,        keys, keys + 6},
    {"layout passes",  QEvent::LayoutRequest, 0,    5},
    {"paints",         QEvent::Paint,         keys, keys + 6},
};

/// The key, and the one that looked selected until then.
const Cost keyLook[] = {
    {"paints",         QEvent::Paint,         1,    2},
    {"flushes",        QEvent::UpdateRequest, 1,    1},
    {"layout passes",  QEvent::LayoutRequest, 0,    0},
};

/// The key, and the field on the background that shows through it.
const Cost typedLetter[] = {
    {"paints",         QEvent::Paint,         5,    6},
    {"flushes",        QEvent::UpdateRequest, 1,    2},
    {"layout passes",  QEvent::LayoutRequest, 0,    0},
};

// clang-format on

} // namespace

class tst_cost_keypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void openedAndOpenedAgain();
    void filesOfAnOpenedKeypad();
    void touchedKey();
    void typedLetterInTheDialog();
};

void tst_cost_keypad::initTestCase()
{
    const QString file = QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml");
    QVERIFY(CWidgetStyle::initialize(file));
}

void tst_cost_keypad::openedAndOpenedAgain()
{
    for (int i = 0; i < 2; ++i)
        CWIDGET_VERIFY_COSTS(opening, [] {
            CSoftKeyPad pad(CKeyPadFactory::SKP_GENERAL);
            QCOMPARE(testing::keysOf(&pad).size(), keys);
            pad.show();
            QVERIFY(testcompat::waitForWindow(&pad));
        });
}

/// The first one decodes the pictures that its keys share, and one opened again nothing at all.
/// None of them reads a file.
void tst_cost_keypad::filesOfAnOpenedKeypad()
{
    if (!testing::FileReads::seesFiles() || !testing::FileReads::seesPictures())
        CWIDGET_SKIP("what this Qt reads is not seen");
    const int mostPictures = 7;
    QPixmapCache::clear();
    for (int i = 0; i < 3; ++i) {
        const testing::FileReads reads;
        CSoftKeyPad pad(CKeyPadFactory::SKP_GENERAL);
        pad.show();
        testing::settle();
        QCOMPARE(reads.files(), QList<QByteArray>());
        const int pictures = reads.pictures();
        QVERIFY2(i == 0 ? pictures > 0 && pictures <= mostPictures : pictures == 0,
                 qPrintable(QString::number(pictures)));
    }
}

void tst_cost_keypad::touchedKey()
{
    CGenKeyPad grid;
    grid.show();
    QVERIFY(testcompat::waitForWindow(&grid));
    for (int i = 0; i < 2; ++i) {
        CKeyButton* key = keyOf(&grid, Qt::Key_A + i);
        CWIDGET_VERIFY_COSTS(keyLook, [&] { testing::press(key); });
        CWIDGET_VERIFY_COSTS(keyLook, [&] { testing::release(key); });
    }
}

void tst_cost_keypad::typedLetterInTheDialog()
{
    CSoftKeyPad pad(CKeyPadFactory::SKP_GENERAL);
    pad.show();
    QVERIFY(testcompat::waitForWindow(&pad));
    QTextDocument* document = pad.findChild<CKeyPadEdit*>()->document();
    const QSignalSpy layouts(document->documentLayout(), SIGNAL(update(QRectF)));
    for (int i = 0; i < 3; ++i) {
        CKeyButton* key = keyOf(&pad, Qt::Key_A + i % 2);
        CWIDGET_VERIFY_COSTS(typedLetter, [&] { testing::touch(key); });
    }
    QCOMPARE(pad.getInput().size(), 3);
    const int mostLayouts = 3 * 2; // for the letter, and for where it is aligned
    QVERIFY2(layouts.count() > 0 && layouts.count() <= mostLayouts,
             qPrintable(QString::number(layouts.count())));
}

QTEST_MAIN(tst_cost_keypad)
#include "tst_cost_keypad.moc"
