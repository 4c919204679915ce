#include "support/rows.h"
#include "support/testing.h"
#include "widgets/checkbox.h"

#include <QHBoxLayout>

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
    void everyTouchOfTheWidgetIsAClick_data();
    void everyTouchOfTheWidgetIsAClick();
    void sizeHintCoversAllThatIsDrawn_data();
    void sizeHintCoversAllThatIsDrawn();
    void sizeHintFollowsTextAndFont();
    void layoutShowsTheWholeCaption();
    void isCheckableAsItsBase();
    void aDisabledBoxKeepsItsState();
    void setCheckedIsSilent();
    void setCheckStateAnnouncesChanges();
    void keysAndClicksOfQtLeaveTheState();
    void qtsOwnFlagIsNotUsed();
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

void tst_checkbox::everyTouchOfTheWidgetIsAClick_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::newRow("box") << QPoint(12, 14);
    QTest::newRow("top left corner") << QPoint(0, 0);
    QTest::newRow("between box and caption") << QPoint(24, 14);
    QTest::newRow("below the caption") << QPoint(50, 27);
    QTest::newRow("right of the frame") << QPoint(290, 2);
    QTest::newRow("bottom right corner") << QPoint(299, 27);
}

void tst_checkbox::everyTouchOfTheWidgetIsAClick()
{
    QFETCH(QPoint, point);
    CCheckBox box(QLatin1String("Fan"));
    box.resize(300, 28);
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QSignalSpy pressed(&box, SIGNAL(pressed()));
    QSignalSpy released(&box, SIGNAL(released()));
    QSignalSpy clicked(&box, SIGNAL(clicked(bool)));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, point);
    QVERIFY(box.isChecked());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(clicked.count(), 1);
}

void tst_checkbox::sizeHintCoversAllThatIsDrawn_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isFramed");
    const char* const captions[] = {"", "i", "Enable automatic restart", "100 % & more"};
    for (size_t i = 0; i < sizeof captions / sizeof captions[0]; ++i) {
        for (int height = 20; height <= 60; height += 8) {
            for (int isFramed = 0; isFramed < 2; ++isFramed)
                QTest::newRow(
                    qPrintable(QString::fromLatin1("'%1', %2 high, %3")
                                   .arg(QLatin1String(captions[i]))
                                   .arg(height)
                                   .arg(QLatin1String(isFramed ? "framed" : "without frame"))))
                    << QString::fromLatin1(captions[i]) << height << (isFramed != 0);
        }
    }
}

void tst_checkbox::sizeHintCoversAllThatIsDrawn()
{
    QFETCH(QString, caption);
    QFETCH(int, height);
    QFETCH(bool, isFramed);
    CCheckBox box(caption);
    box.setForegroundColor(Qt::darkGreen);
    box.setBorderVisible(isFramed);
    box.setFixedHeight(height);
    const QSize hint = box.sizeHint();
    QCOMPARE(hint.height(), height);
    QCOMPARE(box.minimumSizeHint(), hint);
    box.resize(hint.width() + 200, height);
    const QImage image = testing::render(&box, Qt::white);
    const QImage beyond = image.copy(hint.width(), 0, 200, height);
    CWIDGET_COMPARE_IMAGES(beyond, testing::canvas(beyond.size(), Qt::white));
    // Not more than that either: the last column is the end of the frame.
    if (isFramed && !caption.isEmpty() && height <= 28)
        QVERIFY(image.pixel(hint.width() - 1, height / 2) != QColor(Qt::white).rgb());
}

void tst_checkbox::sizeHintFollowsTextAndFont()
{
    CCheckBox box(QLatin1String("Heating"));
    const int width = box.sizeHint().width();
    box.setText(QLatin1String("Heating of the cabinet"));
    const int longer = box.sizeHint().width();
    QVERIFY(longer > width);
    box.setFont(testing::testFont(20));
    QVERIFY(box.sizeHint().width() > longer);
    CCheckBox bare;
    QCOMPARE(bare.sizeHint(), QSize(20, 20));
    QCOMPARE(bare.minimumSizeHint(), QSize(20, 20));
}

void tst_checkbox::layoutShowsTheWholeCaption()
{
    QWidget window;
    QHBoxLayout* row = new QHBoxLayout(&window);
    CCheckBox* box = new CCheckBox(QLatin1String("Enable automatic restart"));
    row->addWidget(box);
    row->addStretch();
    window.resize(600, 60);
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    const QFontMetrics metrics(box->font());
    QCOMPARE(box->size(), QSize(testcompat::textWidth(metrics, box->text()) + 41, 28));
}

void tst_checkbox::isCheckableAsItsBase()
{
    CCheckBox bare;
    CCheckBox captioned(QLatin1String("Heating"));
    QVERIFY(bare.isCheckable());
    QVERIFY(captioned.isCheckable());
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

/// Setting it by Qt's own means leaves the box as it is, and announces nothing.
void tst_checkbox::qtsOwnFlagIsNotUsed()
{
    CCheckBox bare;
    CCheckBox captioned(QLatin1String("Heating"));
    CCheckBox* boxes[] = {&bare, &captioned};
    for (size_t i = 0; i < sizeof boxes / sizeof boxes[0]; ++i) {
        const testing::InRow inRow(i);
        QSignalSpy changes(boxes[i], SIGNAL(stateChanged(int)));
        boxes[i]->resize(120, 28);
        const QImage before = testing::render(boxes[i]);
        static_cast<QAbstractButton*>(boxes[i])->setChecked(true);
        QVERIFY(!boxes[i]->isChecked());
        CWIDGET_COMPARE_IMAGES(testing::render(boxes[i]), before);
        QCOMPARE(changes.count(), 0);
        QTest::mouseClick(boxes[i], Qt::LeftButton, Qt::NoModifier, QPoint(9, 10));
        QVERIFY(boxes[i]->isChecked());
        QCOMPARE(changes.count(), 1);
        boxes[i]->toggle();
        QVERIFY(boxes[i]->isChecked());
        QCOMPARE(changes.count(), 1);
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
        m_box = nullptr;
    }

private:
    CCheckBox* m_box;
};

} // namespace

void tst_checkbox::aSlotMayDeleteTheBox()
{
    const char* const triggers[] = {SIGNAL(pressed()), SIGNAL(stateChanged(int))};
    for (size_t i = 0; i < sizeof triggers / sizeof triggers[0]; ++i) {
        const testing::InRow inRow(triggers[i]);
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
