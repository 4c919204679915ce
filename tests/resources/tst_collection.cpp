#include "support/testing.h"

#include <QDir>
#include <QDomDocument>
#include <QSet>

namespace
{

const struct Picture {
    const char* name;
    int width;
    int height;
} pictures[] = {
    // clang-format off
    {"ARROW-BLACK.png", 52, 26},
    {"ARROW-WHITE.png", 52, 26},
    {"BB_LIGHT_4states.png", 120, 20},
    {"BIG_RCTB_BUTTONGRAY_3states.png", 360, 40},
    {"BIG_RCTB_BUTTONGREEN_3states.png", 360, 40},
    {"BIG_RCTB_BUTTONORANGE_3states.png", 360, 40},
    {"BIG_RCTB_BUTTONRED_3states.png", 360, 40},
    {"Forward.png", 30, 30},
    {"GENKB_APPLY_BTN.png", 285, 45},
    {"GENKB_BUTTON.png", 135, 45},
    {"GENKB_CAPS_BTN.png", 165, 45},
    {"GENKB_DELALL_BTN.png", 225, 45},
    {"GENKB_SHIFT_BTN.png", 165, 45},
    {"GENKB_SPACE_BTN.png", 1095, 45},
    {"GENKB_SYMBOL_BTN.png", 198, 45},
    {"HEXKB_APPLY_BTN.png", 270, 30},
    {"HEXKB_BACKSPACE_BTN.png", 120, 30},
    {"HEXKB_BUTTON.png", 225, 40},
    {"HEXKB_DELALL_BTN.png", 231, 30},
    {"HEXKB_DEL_BTN.png", 120, 30},
    {"HEXKB_DOT_BTN.png", 120, 30},
    {"MISC_PROGCLK_11states.png", 330, 30},
    {"NUMKB_APPLY_BTN.png", 270, 40},
    {"NUMKB_BACKSPACE_BTN.png", 150, 40},
    {"NUMKB_BUTTON.png", 240, 50},
    {"NUMKB_DELALL_BTN.png", 231, 40},
    {"NUMKB_DEL_BTN.png", 150, 40},
    {"NUMKB_DOT_BTN.png", 150, 40},
    {"RCTB_BUTTONGRAY_3states.png", 360, 40},
    {"RCTB_BUTTONGREEN_3states.png", 360, 40},
    {"RCTB_BUTTONORANGE_3states.png", 360, 40},
    {"RCTB_BUTTONRED_3states.png", 360, 40},
    {"Reload.png", 30, 30},
    {"Stop.png", 30, 30},
    {"TB_CLOSE_3states.png", 132, 44},
    {"UTIL_TB_BKGROUND.png", 800, 44},
    {"arrow-down-3states.png", 72, 40},
    {"arrow-up-3states.png", 72, 40},
    {"arrow_20x20pixels.png", 80, 20},
    {"back.png", 30, 30},
    {"backlight.png", 120, 40},
    {"bluetooth-device.png", 32, 32},
    {"checkbox_3states.png", 48, 16},
    {"computer-laptop.png", 32, 32},
    {"drop-down.png", 20, 20},
    {"fileopen.png", 32, 32},
    {"go-next-view_2states.png", 32, 16},
    {"go-previous-view_2states.png", 32, 16},
    {"group-background_120X30.png", 120, 30},
    {"hspinbox_arrow_20.png", 104, 20},
    {"led_16X16 pixels.png", 96, 16},
    {"main-area_selection.png", 120, 120},
    {"menuentry_top-140x50.png", 560, 50},
    {"menuentry_top.png", 480, 40},
    {"mobile-phone.png", 32, 32},
    {"next_page.png", 50, 22},
    {"object-locked.png", 16, 16},
    {"prev_page.png", 50, 22},
    {"security.png", 16, 16},
    {"selection_final.png", 279, 440},
    {"spin_minus.png", 56, 28},
    {"spin_plus.png", 56, 28},
    {"stock-zoom-in-16_2states.png", 32, 16},
    {"stock-zoom-out-16_2states.png", 32, 16},
    {"wireless-0.png", 24, 24},
    {"wireless-100.png", 24, 24},
    {"wireless-25.png", 24, 24},
    {"wireless-50.png", 24, 24},
    {"wireless-75.png", 24, 24},
    {"wireless-connected.png", 32, 32},
    {"zoom.png", 22, 22},
    {"zoom_in.png", 50, 22},
    {"zoom_out.png", 50, 22},
    // clang-format on
};

const int pictureCount = sizeof pictures / sizeof pictures[0];

QString pathOf(const char* name)
{
    return QLatin1String(":/images/") + QLatin1String(name);
}

} // namespace

class tst_collection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPictureHasItsSize();
    void nothingElseIsInTheCollection();
    void collectionHoldsTheFilesUncompressed();
    void namesAreCaseSensitive();
    void contactSheetIsThere();
};

void tst_collection::everyPictureHasItsSize()
{
    QCOMPARE(pictureCount, 73);
    for (int i = 0; i < pictureCount; ++i) {
        const QImage image(pathOf(pictures[i].name));
        QVERIFY2(!image.isNull(), pictures[i].name);
        QVERIFY2(image.size() == QSize(pictures[i].width, pictures[i].height), pictures[i].name);
    }
}

void tst_collection::nothingElseIsInTheCollection()
{
    QSet<QString> known;
    for (int i = 0; i < pictureCount; ++i)
        known.insert(QLatin1String(pictures[i].name));
    const QStringList inCollection = QDir(QLatin1String(":/images")).entryList();
    const QStringList inTree =
        QDir(QLatin1String(CWIDGET_SOURCE_DIR "/resources/images")).entryList(QDir::Files);
    QCOMPARE(inCollection.size(), pictureCount);
    QCOMPARE(inTree.size(), pictureCount);
    for (int i = 0; i < pictureCount; ++i) {
        QVERIFY2(known.contains(inCollection.at(i)), qPrintable(inCollection.at(i)));
        QVERIFY2(known.contains(inTree.at(i)), qPrintable(inTree.at(i)));
    }
}

// What the collection holds is byte for byte the file, and stands so in the library.
void tst_collection::collectionHoldsTheFilesUncompressed()
{
    const QByteArray library = testing::contentOf(QLatin1String(CWIDGET_LIBRARY));
    QVERIFY(!library.isEmpty());
    for (int i = 0; i < pictureCount; ++i) {
        const QByteArray file =
            testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/resources/images/") +
                               QLatin1String(pictures[i].name));
        QCOMPARE(testing::contentOf(pathOf(pictures[i].name)), file);
        QVERIFY2(library.contains(file), pictures[i].name);
    }
}

void tst_collection::namesAreCaseSensitive()
{
    const char* const others[] = {"forward.png",         "Back.png",
                                  "RELOAD.png",          "group-background_120x30.png",
                                  "led_16X16pixels.png", "arrow-white.png"};
    for (size_t i = 0; i < sizeof others / sizeof others[0]; ++i)
        QVERIFY2(QImage(pathOf(others[i])).isNull(), others[i]);
}

void tst_collection::contactSheetIsThere()
{
    const QImage sheet(QLatin1String(CWIDGET_SOURCE_DIR "/docs/images/contact-sheet.png"));
    QVERIFY(sheet.width() >= 800);
    QVERIFY(sheet.height() >= 600);
}

QTEST_MAIN(tst_collection)
#include "tst_collection.moc"
