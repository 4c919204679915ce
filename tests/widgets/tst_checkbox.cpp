#include "style/qtcompat.h"
#include "support/resolution.h"
#include "support/testing.h"
#include "widgets/checkbox.h"

#include <QFontMetrics>
#include <QPainter>

namespace
{

// Where box and tick are for a height.
struct GeometryRow {
    int height;
    QRect box;
    QPoint tick[3];
};

// clang-format off
const GeometryRow geometries[] = {
    {15, QRect( 4,  5,  7,  7), {QPoint( 6,  8), QPoint( 7,  9), QPoint( 9,  8)}},
    {20, QRect( 4,  5, 10, 10), {QPoint( 6, 10), QPoint( 8, 12), QPoint(12,  8)}},
    {27, QRect( 7,  8, 13, 13), {QPoint( 9, 14), QPoint(12, 18), QPoint(18, 11)}},
    {28, QRect( 6,  7, 14, 14), {QPoint( 8, 14), QPoint(11, 18), QPoint(18, 10)}},
    {33, QRect( 8,  9, 16, 16), {QPoint(10, 17), QPoint(14, 22), QPoint(22, 12)}},
    {40, QRect( 9, 10, 20, 20), {QPoint(11, 20), QPoint(16, 27), QPoint(27, 13)}},
    {41, QRect(10, 11, 20, 20), {QPoint(12, 21), QPoint(17, 28), QPoint(28, 14)}},
};
// clang-format on

const GeometryRow& geometryOf(int height)
{
    for (size_t i = 0; i < sizeof geometries / sizeof geometries[0]; ++i) {
        if (geometries[i].height == height)
            return geometries[i];
    }
    qFatal("no row for height %d", height);
    return geometries[0];
}

// What is to be seen of a check box.
struct Look {
    bool ticked;
    bool framed;
    QColor foreground;
    QColor background;
    QString caption;
    QFont font;

    Look() : ticked(false), framed(false), foreground(Qt::white)
    {
    }
};

void paintCaption(QPainter* painter, const QSize& size, const GeometryRow& row, const Look& look)
{
    painter->setFont(look.font);
    painter->drawText(QRect(row.box.x() + row.box.width() - 1 + 10, 1,
                            size.width() - row.box.width(), size.height()),
                      Qt::AlignLeft | Qt::AlignVCenter, look.caption);
}

void paintFrame(QPainter* painter, const QSize& size, const Look& look)
{
    const int captionWidth = qtcompat::textWidth(QFontMetrics(look.font), look.caption);
    QPen pen(Qt::black);
    pen.setWidth(1);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->drawRect(0, 0, captionWidth + 40, size.height() - 1);
}

QImage expected(const CCheckBox& box, const Look& look)
{
    const QSize size = box.size();
    const GeometryRow& row = geometryOf(size.height());
    QImage image = testing::canvasOfResolution(&box);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (look.background.isValid())
        painter.fillRect(QRect(QPoint(0, 0), size), look.background);
    QPen pen(look.foreground);
    pen.setWidth(2);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawRect(row.box);
    if (look.ticked) {
        pen.setWidthF(1.8);
        pen.setCapStyle(Qt::RoundCap);
        painter.setPen(pen);
        painter.drawPolyline(row.tick, 3);
    }
    if (!look.caption.isEmpty())
        paintCaption(&painter, size, row, look);
    if (look.framed)
        paintFrame(&painter, size, look);
    return image;
}

Look captionedLook(const CCheckBox& box)
{
    Look look;
    look.framed = true;
    look.caption = box.text();
    look.font = box.font();
    return look;
}

QFont captionFont()
{
    return QFont(QLatin1String("Arial"), 9, QFont::Bold);
}

void callSetter(CCheckBox* box, int setter)
{
    switch (setter) {
    case 0:
        return box->setChecked(true);
    case 1:
        return box->setChecked(box->isChecked());
    case 2:
        return box->setCheckState(Qt::Checked);
    case 3:
        return box->setCheckState(box->checkState());
    case 4:
        return box->setBorderVisible(true);
    case 5:
        return box->setForegroundColor(Qt::red);
    default:
        return box->setBackgroundColor(Qt::blue);
    }
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
    void aBareBox();
    void aCaptionedBox();
    void bothStartUnchecked();
    void aCaptionedBoxTakesItsStyle();
    void aBareBoxTakesNoStyle();
    void boxAndTickForEveryHeight();
    void bareBoxForEveryHeight();
    void aLongCaptionIsCutByTheWidget();
    void colors();
    void anInvalidBackgroundShowsTheParent();
    void aFrameWithoutCaption();
    void touchTogglesAndAnnouncesOnce();
    void releaseDoesNothingMore();
    void aSecondQuickTouchTogglesBack();
    void touchOutsideOfQtsHitAreaToggles();
    void aDisabledBoxKeepsItsState();
    void setCheckedIsSilent();
    void setCheckStateAnnouncesChanges();
    void everySetterRepaints_data();
    void everySetterRepaints();
    void keysAndClicksOfQtLeaveTheState();
    void qtsOwnFlagCannotBeSet();
    void aSlotMayDeleteTheBox();
    void autoStyleGatesTheStyle();
    void onlyFieldAllCounts();
};

void tst_checkbox::aBareBox()
{
    CCheckBox box;
    QCOMPARE(box.minimumSize(), QSize(20, 20));
    QCOMPARE(box.maximumSize(), QSize(20, 20));
    QVERIFY(box.text().isEmpty());
    QVERIFY(!box.isAutoStyleEnabled());
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, Look()));
}

void tst_checkbox::aCaptionedBox()
{
    CCheckBox box(QLatin1String("Heating"));
    QCOMPARE(box.minimumHeight(), 28);
    QCOMPARE(box.maximumHeight(), 28);
    QCOMPARE(box.text(), QString::fromLatin1("Heating"));
    QVERIFY(box.isAutoStyleEnabled());
    QCOMPARE(box.font().toString(), captionFont().toString());
    box.resize(160, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, captionedLook(box)));
}

void tst_checkbox::bothStartUnchecked()
{
    CCheckBox bare;
    CCheckBox captioned(QLatin1String("Heating"));
    QVERIFY(!bare.isChecked());
    QVERIFY(!captioned.isChecked());
    QCOMPARE(bare.checkState(), Qt::Unchecked);
    QCOMPARE(captioned.checkState(), Qt::Unchecked);
}

void tst_checkbox::aCaptionedBoxTakesItsStyle()
{
    testing::TemporaryFolder folder;
    QVERIFY(CWidgetStyle::initialize(
        folder.write(QLatin1String("style.xml"),
                     "<styles><widget name=\"CCheckBox\"><FieldAll>"
                     "<font family=\"Liberation Mono\" size=\"17\" bold=\"false\"/>"
                     "<color foreground-color=\"#FF0000\" background-color=\"#00FF00\"/>"
                     "</FieldAll></widget></styles>")));
    CCheckBox box(QLatin1String("Heating"));
    QVERIFY(CWidgetStyle::initialize(
        folder.write(QLatin1String("style.xml"), "<styles><widget name=\"CCheckBox\"/></styles>")));
    QCOMPARE(box.font().family(), QString::fromLatin1("Liberation Mono"));
    QCOMPARE(box.font().pixelSize(), 17);
    QVERIFY(!box.font().bold());
    box.resize(160, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, captionedLook(box)));
}

void tst_checkbox::aBareBoxTakesNoStyle()
{
    CCheckBox box;
    const QString before = box.font().toString();
    box.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(31)));
    QCOMPARE(box.font().toString(), before);
}

void tst_checkbox::boxAndTickForEveryHeight()
{
    for (size_t i = 0; i < sizeof geometries / sizeof geometries[0]; ++i) {
        const QSize size(150, geometries[i].height);
        CCheckBox box(QLatin1String("Fan"));
        box.setFont(testing::testFont(12, true));
        box.setFixedSize(size);
        Look look = captionedLook(box);
        CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
        box.setChecked(true);
        look.ticked = true;
        CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
    }
}

void tst_checkbox::bareBoxForEveryHeight()
{
    for (size_t i = 0; i < sizeof geometries / sizeof geometries[0]; ++i) {
        const QSize size(70, geometries[i].height);
        CCheckBox box;
        box.setFixedSize(size);
        box.setChecked(true);
        Look look;
        look.ticked = true;
        CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
    }
}

void tst_checkbox::aLongCaptionIsCutByTheWidget()
{
    CCheckBox box(QLatin1String("A caption that is far wider than its box"));
    box.resize(80, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, captionedLook(box)));
}

void tst_checkbox::colors()
{
    CCheckBox box(QLatin1String("Heating"));
    box.resize(160, 28);
    box.setForegroundColor(QColor(0, 205, 0));
    box.setBackgroundColor(QColor(99, 94, 128));
    box.setBorderVisible(false);
    box.setChecked(true);
    Look look = captionedLook(box);
    look.framed = false;
    look.ticked = true;
    look.foreground = QColor(0, 205, 0);
    look.background = QColor(99, 94, 128);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
}

void tst_checkbox::anInvalidBackgroundShowsTheParent()
{
    QWidget parent;
    parent.setFixedSize(20, 20);
    QPalette palette = parent.palette();
    palette.setColor(QPalette::Window, QColor(10, 20, 200));
    parent.setPalette(palette);
    parent.setAutoFillBackground(true);
    CCheckBox box(&parent);
    QImage image = testing::canvas(&parent);
    parent.render(&image);
    QCOMPARE(image.pixel(1, 1), QColor(10, 20, 200).rgb());
    QCOMPARE(image.pixel(9, 10), QColor(10, 20, 200).rgb());
    box.setBackgroundColor(Qt::yellow);
    parent.render(&image);
    QCOMPARE(image.pixel(1, 1), QColor(Qt::yellow).rgb());
    QCOMPARE(image.pixel(9, 10), QColor(Qt::yellow).rgb());
    box.setBackgroundColor(QColor());
    parent.render(&image);
    QCOMPARE(image.pixel(1, 1), QColor(10, 20, 200).rgb());
}

void tst_checkbox::aFrameWithoutCaption()
{
    CCheckBox box;
    box.setFixedSize(70, 28);
    box.setBorderVisible(true);
    Look look;
    look.framed = true;
    look.font = box.font();
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
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

void tst_checkbox::everySetterRepaints_data()
{
    QTest::addColumn<int>("setter");
    QTest::newRow("setChecked(true)") << 0;
    QTest::newRow("setChecked of the same") << 1;
    QTest::newRow("setCheckState(Checked)") << 2;
    QTest::newRow("setCheckState of the same") << 3;
    QTest::newRow("setBorderVisible") << 4;
    QTest::newRow("setForegroundColor") << 5;
    QTest::newRow("setBackgroundColor") << 6;
}

void tst_checkbox::everySetterRepaints()
{
    QFETCH(int, setter);
    CCheckBox box;
    box.show();
    QVERIFY(testcompat::waitForWindow(&box));
    QVERIFY(testing::repaints(&box, [&]() { callSetter(&box, setter); }));
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
