#include "support/testing.h"
#include "widgets/checkbox.h"

namespace
{

QFont captionFont()
{
    return QFont(QLatin1String("Arial"), 9, QFont::Bold);
}

void sendMouse(QObject* box, QEvent::Type type)
{
    QMouseEvent event(type, QPoint(9, 10), QPoint(9, 10), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    box->event(&event);
}

bool qtsOwnFlag(const CCheckBox& box)
{
    return static_cast<const QAbstractButton&>(box).isChecked();
}

} // namespace

class tst_checkbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothStartUnchecked();
    void aBareBoxTakesNoStyle();
    void touchTogglesAndAnnouncesOnce();
    void releaseDoesNothingMore();
    void aSecondQuickTouchTogglesBack();
    void touchOutsideOfQtsHitAreaToggles();
    void aDisabledBoxKeepsItsState();
    void setCheckedIsSilent();
    void setCheckStateAnnouncesChanges();
    void keysAndClicksOfQtLeaveTheState();
    void qtsOwnFlagCannotBeSet();
    void aSlotMayDeleteTheBox();
    void autoStyleGatesTheStyle();
    void onlyFieldAllCounts();
};

void tst_checkbox::bothStartUnchecked()
{
    CCheckBox bare;
    CCheckBox captioned(QLatin1String("Heating"));
    QVERIFY(!bare.isChecked());
    QVERIFY(!captioned.isChecked());
    QCOMPARE(bare.checkState(), Qt::Unchecked);
    QCOMPARE(captioned.checkState(), Qt::Unchecked);
}

void tst_checkbox::aBareBoxTakesNoStyle()
{
    CCheckBox box;
    const QString before = box.font().toString();
    box.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(31)));
    QCOMPARE(box.font().toString(), before);
}

void tst_checkbox::touchTogglesAndAnnouncesOnce()
{
    CCheckBox box(QLatin1String("Heating"));
    box.resize(160, 28);
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QSignalSpy toggles(&box, SIGNAL(toggled(bool)));
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    QVERIFY(box.isChecked());
    QCOMPARE(box.checkState(), Qt::Checked);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(1).at(0).toInt(), 0);
    QVERIFY(!box.isChecked());
    QCOMPARE(toggles.count(), 0);
}

void tst_checkbox::releaseDoesNothingMore()
{
    CCheckBox box(QLatin1String("Heating"));
    box.resize(160, 28);
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 0);
    QVERIFY(box.isChecked());
    QVERIFY(!qtsOwnFlag(box));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 1);
    QVERIFY(!box.isChecked());
    QVERIFY(!qtsOwnFlag(box));
}

void tst_checkbox::aSecondQuickTouchTogglesBack()
{
    CCheckBox box;
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    sendMouse(&box, QEvent::MouseButtonPress);
    sendMouse(&box, QEvent::MouseButtonRelease);
    sendMouse(&box, QEvent::MouseButtonDblClick);
    sendMouse(&box, QEvent::MouseButtonRelease);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    QCOMPARE(changes.at(1).at(0).toInt(), 0);
    QVERIFY(!box.isChecked());
}

void tst_checkbox::touchOutsideOfQtsHitAreaToggles()
{
    CCheckBox box(QLatin1String("Fan"));
    box.resize(300, 28);
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(290, 2));
    QCOMPARE(changes.count(), 1);
    QVERIFY(box.isChecked());
}

void tst_checkbox::aDisabledBoxKeepsItsState()
{
    CCheckBox box;
    box.setEnabled(false);
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(9, 10));
    QCOMPARE(changes.count(), 0);
    QVERIFY(!box.isChecked());
}

void tst_checkbox::setCheckedIsSilent()
{
    CCheckBox box;
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QSignalSpy toggles(&box, SIGNAL(toggled(bool)));
    box.setChecked(true);
    QVERIFY(box.isChecked());
    QCOMPARE(box.checkState(), Qt::Checked);
    box.setChecked(true);
    box.setChecked(false);
    QVERIFY(!box.isChecked());
    QCOMPARE(box.checkState(), Qt::Unchecked);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(toggles.count(), 0);
}

void tst_checkbox::setCheckStateAnnouncesChanges()
{
    CCheckBox box;
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    box.setCheckState(Qt::Unchecked);
    QCOMPARE(changes.count(), 0);
    box.setCheckState(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    box.setCheckState(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    box.setCheckState(Qt::Unchecked);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(1).at(0).toInt(), 0);
}

void tst_checkbox::keysAndClicksOfQtLeaveTheState()
{
    CCheckBox box(QLatin1String("&Heating"));
    box.show();
    QVERIFY(testcompat::waitForWindow(&box));
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QSignalSpy toggles(&box, SIGNAL(toggled(bool)));
    QTest::keyClick(&box, Qt::Key_Space);
    box.click();
    QCOMPARE(changes.count(), 0);
    QCOMPARE(toggles.count(), 0);
    QVERIFY(!box.isChecked());
    QVERIFY(!qtsOwnFlag(box));
}

void tst_checkbox::qtsOwnFlagCannotBeSet()
{
    CCheckBox bare;
    CCheckBox captioned(QLatin1String("Heating"));
    CCheckBox* boxes[] = {&bare, &captioned};
    for (size_t i = 0; i < sizeof boxes / sizeof boxes[0]; ++i) {
        QSignalSpy changes(boxes[i], SIGNAL(stateChanged(int)));
        QSignalSpy toggles(boxes[i], SIGNAL(toggled(bool)));
        boxes[i]->toggle();
        QVERIFY(QMetaObject::invokeMethod(boxes[i], "setChecked", Q_ARG(bool, true)));
        QVERIFY(!qtsOwnFlag(*boxes[i]));
        QVERIFY(!boxes[i]->isChecked());
        QCOMPARE(changes.count(), 0);
        QCOMPARE(toggles.count(), 0);
    }
}

namespace
{

class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(CCheckBox* box) : m_box(box)
    {
    }

public Q_SLOTS:
    void deleteBox()
    {
        delete m_box;
        m_box = 0;
    }

private:
    CCheckBox* m_box;
};

} // namespace

void tst_checkbox::aSlotMayDeleteTheBox()
{
    const char* const triggers[] = {SIGNAL(pressed()), SIGNAL(stateChanged(int))};
    for (size_t i = 0; i < sizeof triggers / sizeof triggers[0]; ++i) {
        QPointer<CCheckBox> box(new CCheckBox);
        Deleter deleter(box);
        connect(box, triggers[i], &deleter, SLOT(deleteBox()));
        sendMouse(box, QEvent::MouseButtonPress);
        QVERIFY(!box);
    }
}

void tst_checkbox::autoStyleGatesTheStyle()
{
    const WidgetStyle style = testing::styleOf(Style::FieldAll, testing::testFont(31));
    CCheckBox box(QLatin1String("Heating"));
    box.setAutoStyleEnabled(false);
    QVERIFY(!box.isAutoStyleEnabled());
    box.setWidgetStyle(style);
    QCOMPARE(box.font().toString(), captionFont().toString());
    box.setAutoStyleEnabled(true);
    box.setWidgetStyle(style);
    QCOMPARE(box.font().pixelSize(), 31);
}

void tst_checkbox::onlyFieldAllCounts()
{
    CCheckBox box(QLatin1String("Heating"));
    box.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(31)));
    box.setWidgetStyle(testing::styleOf(Style::FieldValue, testing::testFont(31)));
    QCOMPARE(box.font().toString(), captionFont().toString());
}

QTEST_MAIN(tst_checkbox)
#include "tst_checkbox.moc"
