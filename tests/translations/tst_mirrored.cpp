#include "support/testing.h"

#include "keypad/keybutton.h"
#include "pages/combobox.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "widgets/checkbox.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/pushbutton.h"
#include "widgets/toptitlearea.h"

#include <QScopedPointer>

namespace
{

const QSize size(300, 40);

template <class Control>
QWidget* withText(const QString& text)
{
    Control* const control = new Control;
    control->setText(text);
    control->setFixedSize(size.width(), size.height());
    return control;
}

QWidget* title(const QString& text)
{
    CTopTitleArea* const area = new CTopTitleArea;
    area->setTitle(text);
    area->setSize(size);
    return area;
}

QWidget* comboBox(const QString& text)
{
    CComboBox* const box = new CComboBox;
    box->addItem(text);
    box->setFixedSize(size);
    return box;
}

QWidget* row(const QString& text)
{
    CPageListWidgetItem* const item = new CPageListWidgetItem(text, nullptr);
    item->setSize(size);
    return item;
}

template <class Field>
QWidget* field(const QString& text)
{
    Field* const field = new Field(QLatin1String("Name"), text, nullptr);
    field->setWidth(size.width());
    return field;
}

QWidget* choice(const QString& text)
{
    CParmComboBox* const field =
        new CParmComboBox(QLatin1String("Name"), QStringList(text), text, nullptr);
    field->setWidth(size.width());
    return field;
}

// Where the text of a mirrored widget is: what Qt lays out or draws changes sides; what the library
// draws is where its own alignment says.
enum Place {
    Same,
    OtherHalf
};

const struct Row {
    const char* name;
    QWidget* (*make)(const QString& text);
    Place place;
} rows[] = {
    // clang-format off
    {"button",         withText<CPushButton>, Same},
    {"key",            withText<CKeyButton>,  Same},
    {"label",          withText<CLabel>,      Same},
    {"check box",      withText<CCheckBox>,   Same},
    {"line edit",      withText<CLineEdit>,   Same},
    {"title",          title,                 Same},
    {"combo box",      comboBox,              OtherHalf},
    {"row",            row,                   Same},
    {"header",         withText<CPageListWidgetHeader>, Same},
    {"label field",    field<CParmLabel>,     OtherHalf},
    {"edit field",     field<CParmLineEdit>,  OtherHalf},
    {"choice field",   choice,                OtherHalf},
    {"switch field",   field<CParmCheckBox>,  OtherHalf},
    // clang-format on
};

QImage shown(const Row& row, const QString& text, Qt::LayoutDirection direction)
{
    const QScopedPointer<QWidget> widget(row.make(text));
    widget->setLayoutDirection(direction);
    widget->setAttribute(Qt::WA_DontShowOnScreen);
    widget->show();
    QCoreApplication::processEvents(); // what was laid out by the first sizes is laid out anew
    return testing::render(widget.data());
}

/// The pixels that the text makes, black on white.
QImage inkOf(const Row& row, Qt::LayoutDirection direction)
{
    const QImage with = shown(row, QLatin1String("Hxg, end"), direction);
    const QImage without = shown(row, QString(), direction);
    QImage ink(with.size(), QImage::Format_RGB32);
    ink.fill(Qt::white);
    for (int y = 0; y < ink.height(); ++y) {
        for (int x = 0; x < ink.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                ink.setPixel(x, y, qRgb(0, 0, 0));
        }
    }
    return ink;
}

QRect boxOf(const QImage& ink)
{
    QRect box;
    for (int y = 0; y < ink.height(); ++y) {
        for (int x = 0; x < ink.width(); ++x) {
            if (ink.pixel(x, y) == qRgb(0, 0, 0))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

class tst_mirrored : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void textIsWhole_data();
    void textIsWhole();
};

void tst_mirrored::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

void tst_mirrored::textIsWhole_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << static_cast<int>(i);
}

/// The same letters, to the pixel, as from left to right, and none cut at an edge.
void tst_mirrored::textIsWhole()
{
    QFETCH(int, index);
    const QImage usual = inkOf(rows[index], Qt::LeftToRight);
    const QImage mirrored = inkOf(rows[index], Qt::RightToLeft);
    const QRect usualBox = boxOf(usual);
    const QRect box = boxOf(mirrored);
    QVERIFY(box.width() > 50);
    CWIDGET_COMPARE_IMAGES(mirrored.copy(box), usual.copy(usualBox));
    QVERIFY(box.left() > 0 && box.right() < mirrored.width() - 1);
    const int middle = mirrored.width() / 2;
    switch (rows[index].place) {
    case Same:
        QCOMPARE(box, usualBox);
        break;
    case OtherHalf:
        QVERIFY((usualBox.right() < middle) != (box.right() < middle));
        break;
    }
}

QTEST_MAIN(tst_mirrored)
#include "tst_mirrored.moc"
