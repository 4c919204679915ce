#include "support/resolution.h"
#include "support/rows.h"
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
    const int captionWidth = testcompat::textWidth(QFontMetrics(look.font), look.caption);
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
    case 6:
        return box->setBackgroundColor(Qt::blue);
    default:
        return box->setAutoStyleEnabled(true);
    }
}

} // namespace

class tst_checkbox_painting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBareBox();
    void aCaptionedBox();
    void aCaptionedBoxTakesItsStyle();
    void boxAndTickForEveryHeight();
    void bareBoxForEveryHeight();
    void aLongCaptionIsCutByTheWidget();
    void colors();
    void anInvalidBackgroundShowsTheParent();
    void aFrameWithoutCaption();
    void everySetterRepaints_data();
    void everySetterRepaints();
};

void tst_checkbox_painting::aBareBox()
{
    CCheckBox box;
    QCOMPARE(box.minimumSize(), QSize(20, 20));
    QCOMPARE(box.maximumSize(), QSize(20, 20));
    QVERIFY(box.text().isEmpty());
    QVERIFY(!box.isAutoStyleEnabled());
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, Look()));
}

void tst_checkbox_painting::aCaptionedBox()
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

void tst_checkbox_painting::aCaptionedBoxTakesItsStyle()
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

void tst_checkbox_painting::boxAndTickForEveryHeight()
{
    for (size_t i = 0; i < sizeof geometries / sizeof geometries[0]; ++i) {
        const testing::InRow inRow(i);
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

void tst_checkbox_painting::bareBoxForEveryHeight()
{
    for (size_t i = 0; i < sizeof geometries / sizeof geometries[0]; ++i) {
        const testing::InRow inRow(i);
        const QSize size(70, geometries[i].height);
        CCheckBox box;
        box.setFixedSize(size);
        box.setChecked(true);
        Look look;
        look.ticked = true;
        CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
    }
}

void tst_checkbox_painting::aLongCaptionIsCutByTheWidget()
{
    CCheckBox box(QLatin1String("A caption that is far wider than its box"));
    box.resize(80, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, captionedLook(box)));
}

void tst_checkbox_painting::colors()
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

void tst_checkbox_painting::anInvalidBackgroundShowsTheParent()
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

void tst_checkbox_painting::aFrameWithoutCaption()
{
    CCheckBox box;
    box.setFixedSize(70, 28);
    box.setBorderVisible(true);
    Look look;
    look.framed = true;
    look.font = box.font();
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected(box, look));
}

void tst_checkbox_painting::everySetterRepaints_data()
{
    QTest::addColumn<int>("setter");
    QTest::newRow("setChecked(true)") << 0;
    QTest::newRow("setChecked of the same") << 1;
    QTest::newRow("setCheckState(Checked)") << 2;
    QTest::newRow("setCheckState of the same") << 3;
    QTest::newRow("setBorderVisible") << 4;
    QTest::newRow("setForegroundColor") << 5;
    QTest::newRow("setBackgroundColor") << 6;
    QTest::newRow("setAutoStyleEnabled") << 7;
}

void tst_checkbox_painting::everySetterRepaints()
{
    QFETCH(int, setter);
    CCheckBox box;
    box.show();
    QVERIFY(testcompat::waitForWindow(&box));
    QVERIFY(testing::repaints(&box, [&]() { callSetter(&box, setter); }));
}

QTEST_MAIN(tst_checkbox_painting)
#include "tst_checkbox_painting.moc"
