#include "gallerywindow.h"

#include "listmap.h"
#include "pages/combobox.h"
#include "support/desktopmain.h"

#include <QPainter>

namespace
{

const QRect recipesRect(120 + 24, 44 + 52, 332, 28);
const QRect unitsRect(120 + 24, 44 + 144, 332, 28);
const QPoint secondBit(120 + 148 + 14, 44 + 144 + 48 + 14);
const QColor marked(67, 172, 232);

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

QStringList listScreen()
{
    return QStringList() << latin("--log") << latin("--screen") << latin("lists");
}

} // namespace

class tst_gallery_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAndChooses();
    void touchOutsideClosesTheList();
    void dragToAnotherRowChoosesNothing();
    void maskOffersAnotherEntry();

private:
    QString boxDiffers(const GalleryWindow& window, const QRect& rect, const QString& text);
};

void tst_gallery_lists::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(latin(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

/// What the closed box shows instead of \a text; empty when it shows the text.
QString tst_gallery_lists::boxDiffers(const GalleryWindow& window, const QRect& rect,
                                      const QString& text)
{
    CComboBox box;
    box.addItems(QStringList(text));
    box.setFixedWidth(rect.width());
    box.setAttribute(Qt::WA_DontShowOnScreen);
    box.show();
    QImage expected(window.grab().size(), QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.drawImage(rect.topLeft(), testing::render(&box));
    painter.end();
    return window.waitFor(expected, QRect(rect.left() + 1, rect.top() + 1, 120, 26));
}

void tst_gallery_lists::pagesAndChooses()
{
    GalleryWindow window(listScreen());
    QVERIFY(window.waitUntilShown());
    QCOMPARE(boxDiffers(window, recipesRect, latin("Recipe 13")), QString());
    window.click(recipesRect.center());
    // The current entry is the third of its page.
    QVERIFY(window.waitForColor(listmap::row(2), marked));
    window.click(listmap::nextPage);
    QVERIFY(window.waitForColor(listmap::row(2), Qt::white));
    window.click(listmap::row(1));
    QCOMPARE(window.nextLine(), latin("Chosen: Recipe 17"));
    QCOMPARE(boxDiffers(window, recipesRect, latin("Recipe 17")), QString());
    // Opened again, the list is on that page.
    window.click(recipesRect.center());
    QVERIFY(window.waitForColor(listmap::row(1), marked));
}

void tst_gallery_lists::touchOutsideClosesTheList()
{
    GalleryWindow window(listScreen());
    QVERIFY(window.waitUntilShown());
    window.click(recipesRect.center());
    QVERIFY(window.waitForColor(listmap::row(2), marked));
    window.click(QPoint(700, 500));
    const QImage lists = GalleryWindow::shot(latin("lists"));
    QCOMPARE(window.waitFor(lists, QRect(420, 130, 300, 400)), QString());
}

void tst_gallery_lists::dragToAnotherRowChoosesNothing()
{
    GalleryWindow window(listScreen());
    QVERIFY(window.waitUntilShown());
    window.click(recipesRect.center());
    QVERIFY(window.waitForColor(listmap::row(2), marked));
    window.press(listmap::row(0));
    window.moveTo(listmap::row(4));
    window.release();
    window.click(listmap::row(3));
    QCOMPARE(window.nextLine(), latin("Chosen: Recipe 14"));
}

void tst_gallery_lists::maskOffersAnotherEntry()
{
    GalleryWindow window(listScreen());
    QVERIFY(window.waitUntilShown());
    window.click(secondBit); // offers "mbar" as the second of six entries
    window.click(unitsRect.center());
    QVERIFY(window.waitForColor(listmap::row(0), marked));
    window.click(listmap::row(1));
    QCOMPARE(window.nextLine(), latin("Chosen: mbar"));
    QCOMPARE(boxDiffers(window, unitsRect, latin("mbar")), QString());
}

CWIDGET_DESKTOP_TEST_MAIN(tst_gallery_lists)

#include "tst_gallery_lists.moc"
