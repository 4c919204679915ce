#include "keypad/genkeypad.h"
#include "keypad/keybutton.h"
#include "languagebutton.h"
#include "panel.h"
#include "support/rows.h"
#include "support/testing.h"

class tst_gallery_language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonSwitchesTheLanguage();
};

void tst_gallery_language::buttonSwitchesTheLanguage()
{
    const QString style = QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml");
    QVERIFY(CWidgetStyle::initialize(style));
    Panel panel(style);
    panel.show();
    QVERIFY(testcompat::waitForWindow(&panel));
    LanguageButton* const button = panel.findChild<LanguageButton*>();
    QVERIFY(button->isVisible());
    const CGenKeyPad grid;
    const CKeyButton* const space = grid.findChildren<CKeyButton*>().at(44);
    const char* const steps[][2] = {
        {"EN", "SPACE"}, {"DE", "Leertaste"}, {"ZH", "空格"}, {"EN", "SPACE"}};
    for (size_t i = 0; i < sizeof steps / sizeof steps[0]; ++i) {
        const testing::InRow inRow(steps[i][0]);
        QCOMPARE(button->getText(), QString::fromUtf8(steps[i][0]));
        QCOMPARE(space->getText(), QString::fromUtf8(steps[i][1]));
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::qWait(10);
    }
}

QTEST_MAIN(tst_gallery_language)
#include "tst_gallery_language.moc"
