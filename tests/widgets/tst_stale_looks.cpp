#include "support/rows.h"
#include "support/testing.h"

#include "keypad/keybutton.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/dialog.h"
#include "widgets/graphicsview.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/toptitlearea.h"

#include <QIcon>
#include <QPixmapCache>

// Whatever a widget keeps from one paint to the next, it must never show what it was before: each
// one is painted, changed, and then looks like a new one that was changed before its first paint.

namespace
{

struct Change {
    const char* name;
    void (*apply)(QWidget* widget);
};

template <typename Widget>
Widget* as(QWidget* widget)
{
    return static_cast<Widget*>(widget);
}

QPixmap picture(const QSize& size, Qt::GlobalColor color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

QFont underlined()
{
    QFont font = testing::testFont(14);
    font.setUnderline(true);
    return font;
}

// ---- what changes of every widget

/// Not of a widget with a style sheet: Qt forgets a palette when the sheet is set once more, as it
/// is for a new font, but only after the first paint.
void setPalette(QWidget* widget, Qt::GlobalColor background, Qt::GlobalColor text)
{
    if (!widget->styleSheet().isEmpty())
        return;
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Button, background);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    widget->setPalette(palette);
}

const Change commonChanges[] = {
    {"nothing", [](QWidget*) {}},
    {"large font", [](QWidget* widget) { widget->setFont(testing::testFont(19)); }},
    {"bold font", [](QWidget* widget) { widget->setFont(testing::testFont(12, true)); }},
    {"font in points", [](QWidget* widget) { widget->setFont(QFont(latin("Arial"), 11)); }},
    {"underlined font", [](QWidget* widget) { widget->setFont(underlined()); }},
    {"disabled", [](QWidget* widget) { widget->setEnabled(false); }},
    {"enabled", [](QWidget* widget) { widget->setEnabled(true); }},
    {"wide", [](QWidget* widget) { widget->setFixedSize(173, 31); }},
    {"narrow", [](QWidget* widget) { widget->setFixedSize(24, 45); }},
    {"red palette", [](QWidget* widget) { setPalette(widget, Qt::red, Qt::yellow); }},
    {"blue palette", [](QWidget* widget) { setPalette(widget, Qt::blue, Qt::white); }},
    {"right to left", [](QWidget* widget) { widget->setLayoutDirection(Qt::RightToLeft); }},
    {"emptied cache", [](QWidget*) { QPixmapCache::clear(); }},
};

// ---- what changes of a class: these go after the common ones

template <typename Widget>
void setText(QWidget* widget)
{
    as<Widget>(widget)->setText(latin("Changed text"));
}

template <typename Widget>
void setShortText(QWidget* widget)
{
    as<Widget>(widget)->setText(latin("M"));
}

template <typename Widget>
void setBlackBackground(QWidget* widget)
{
    as<Widget>(widget)->setBackgroundColor(Qt::black);
}

template <typename Widget>
void setClearBackground(QWidget* widget)
{
    as<Widget>(widget)->setBackgroundColor(QColor(200, 0, 0, 100));
}

template <typename Widget>
void setRedBorder(QWidget* widget)
{
    as<Widget>(widget)->setBorderColor(Qt::red);
}

template <typename Widget>
void setThickBorder(QWidget* widget)
{
    as<Widget>(widget)->setBorderWidth(3);
}

template <typename Widget>
void setGreenText(QWidget* widget)
{
    as<Widget>(widget)->setTextColor(Qt::green);
}

template <typename Widget>
void setStyleFont(QWidget* widget)
{
    const QFont font = testing::testFont(16, true);
    as<Widget>(widget)->setWidgetStyle(testing::styleOf(Style::FieldAll, font));
}

template <typename Widget>
void hideBorder(QWidget* widget)
{
    as<Widget>(widget)->setBorderVisible(false);
}

const Change buttonChanges[] = {
    {"text", setText<CPushButton>},
    {"short text", setShortText<CPushButton>},
    {"no text", [](QWidget* widget) { as<CPushButton>(widget)->setText(QString()); }},
    {"hidden text", [](QWidget* widget) { as<CPushButton>(widget)->setTextSize(0); }},
    {"text colour", setGreenText<CPushButton>},
    {"style font", setStyleFont<CPushButton>},
    {"green look",
     [](QWidget* widget) { as<CPushButton>(widget)->setStyle(CPushButton::GreenStyle, true); }},
    {"red look",
     [](QWidget* widget) { as<CPushButton>(widget)->setStyle(CPushButton::RedStyle, false); }},
    {"picture",
     [](QWidget* widget) {
         as<CPushButton>(widget)->setBackground(picture(QSize(40, 20), Qt::cyan));
     }},
    {"pressed",
     [](QWidget* widget) { as<CPushButton>(widget)->updateStatus(CPushButton::Pressed); }},
    {"selected", [](QWidget* widget) { as<CPushButton>(widget)->setSelected(true); }},
    {"icon",
     [](QWidget* widget) {
         as<CPushButton>(widget)->setIcon(QIcon(picture(QSize(16, 16), Qt::blue)));
     }},
    {"background", setBlackBackground<CPushButton>},
    {"clear background", setClearBackground<CPushButton>},
    {"border", setRedBorder<CPushButton>},
};

const Change keyChanges[] = {
    {"text", [](QWidget* widget) { as<CKeyButton>(widget)->setKeyText(latin("Key")); }},
    {"symbol",
     [](QWidget* widget) {
         as<CKeyButton>(widget)->setSymbol(latin("#"));
         as<CKeyButton>(widget)->showSymbol(true);
     }},
    {"arrow", [](QWidget* widget) { as<CKeyButton>(widget)->setKey(Qt::Key_Backspace); }},
    {"text colour", setGreenText<CKeyButton>},
};

const Change labelChanges[] = {
    {"text", setText<CLabel>},
    {"short text", setShortText<CLabel>},
    {"long text",
     [](QWidget* widget) { as<CLabel>(widget)->setText(latin("words that fill some lines")); }},
    {"corner text", [](QWidget* widget) { as<CLabel>(widget)->setCornerText(latin("mm")); }},
    {"words wrapped", [](QWidget* widget) { as<CLabel>(widget)->setWrapMode(CLabel::WordWrap); }},
    {"wrapped", [](QWidget* widget) { as<CLabel>(widget)->setWrapMode(CLabel::CharWrap); }},
    {"text size", [](QWidget* widget) { as<CLabel>(widget)->setTextSize(17); }},
    {"alignment", [](QWidget* widget) { as<CLabel>(widget)->setAlignment(Qt::AlignRight); }},
    {"text colour", setGreenText<CLabel>},
    {"style font", setStyleFont<CLabel>},
    {"background", setBlackBackground<CLabel>},
    {"clear background", setClearBackground<CLabel>},
    {"picture",
     [](QWidget* widget) { as<CLabel>(widget)->setBackground(picture(QSize(9, 9), Qt::cyan)); }},
    {"border", setRedBorder<CLabel>},
    {"thick border", setThickBorder<CLabel>},
};

const Change checkBoxChanges[] = {
    {"text", setText<CCheckBox>},
    {"short text", setShortText<CCheckBox>},
    {"checked", [](QWidget* widget) { as<CCheckBox>(widget)->setChecked(true); }},
    {"no border", hideBorder<CCheckBox>},
    {"colour", [](QWidget* widget) { as<CCheckBox>(widget)->setForegroundColor(Qt::green); }},
    {"background", setBlackBackground<CCheckBox>},
    {"style font", setStyleFont<CCheckBox>},
};

/// With the cursor at its start: a field that is too narrow for its text scrolls by Qt's own rules,
/// which know of the paints before.
void setLineText(QWidget* widget, const char* text)
{
    as<CLineEdit>(widget)->setText(latin(text));
    as<CLineEdit>(widget)->home(false);
}

const Change lineEditChanges[] = {
    {"text", [](QWidget* widget) { setLineText(widget, "Changed text"); }},
    {"short text", [](QWidget* widget) { setLineText(widget, "M"); }},
    {"no border", hideBorder<CLineEdit>},
    {"own font", [](QWidget* widget) { as<CLineEdit>(widget)->setFont(testing::testFont(11)); }},
    {"style font", setStyleFont<CLineEdit>},
};

const Change comboBoxChanges[] = {
    {"entries",
     [](QWidget* widget) {
         as<CComboBox>(widget)->addItems(QStringList() << latin("first") << latin("second"));
     }},
    {"second entry", [](QWidget* widget) { as<CComboBox>(widget)->setCurrentIndex(1); }},
    {"no border", hideBorder<CComboBox>},
    {"own font", [](QWidget* widget) { as<CComboBox>(widget)->setFont(testing::testFont(11)); }},
    {"style font", setStyleFont<CComboBox>},
};

const Change progressChanges[] = {
    {"value", [](QWidget* widget) { as<CProgressBar>(widget)->setValue(40); }},
    {"high value", [](QWidget* widget) { as<CProgressBar>(widget)->setValue(90); }},
    {"range", [](QWidget* widget) { as<CProgressBar>(widget)->setRange(10, 1000); }},
    {"border", setRedBorder<CProgressBar>},
    {"colour",
     [](QWidget* widget) {
         as<CProgressBar>(widget)->setGradientEabled(false);
         as<CProgressBar>(widget)->setProgressColor(Qt::magenta);
     }},
};

const Change clockChanges[] = {
    {"rolled", [](QWidget* widget) { as<CClockProgress>(widget)->roll(); }},
    {"rolled twice",
     [](QWidget* widget) {
         as<CClockProgress>(widget)->roll();
         as<CClockProgress>(widget)->roll();
     }},
    {"value", [](QWidget* widget) { as<CClockProgress>(widget)->setValue(63); }},
    {"format", [](QWidget* widget) { as<CClockProgress>(widget)->setFormat(1); }},
    {"background", setBlackBackground<CClockProgress>},
};

const Change titleChanges[] = {
    {"title", [](QWidget* widget) { as<CTopTitleArea>(widget)->setTitle(latin("Title")); }},
    {"other title", [](QWidget* widget) { as<CTopTitleArea>(widget)->setTitle(latin("Other")); }},
    {"background", setBlackBackground<CTopTitleArea>},
};

const Change widgetChanges[] = {
    {"background", setBlackBackground<CWidget>},
    {"clear background", setClearBackground<CWidget>},
    {"border", setRedBorder<CWidget>},
    {"thick border", setThickBorder<CWidget>},
    {"no background", [](QWidget* widget) { as<CWidget>(widget)->setBackgroundColor(QColor()); }},
    {"transparency", [](QWidget* widget) { as<CWidget>(widget)->setTransparency(70); }},
    {"picture",
     [](QWidget* widget) { as<CWidget>(widget)->setBackground(picture(QSize(9, 9), Qt::cyan)); }},
};

const Change dialogChanges[] = {
    {"background", setBlackBackground<CDialog>},
    {"clear background", setClearBackground<CDialog>},
    {"no background", [](QWidget* widget) { as<CDialog>(widget)->setBackgroundColor(QColor()); }},
    {"border", setRedBorder<CDialog>},
    {"thick border", setThickBorder<CDialog>},
};

const Change viewChanges[] = {
    {"background", setBlackBackground<CGraphicsView>},
    {"border", setRedBorder<CGraphicsView>},
    {"thick border", setThickBorder<CGraphicsView>},
};

const Change pageBarChanges[] = {
    {"pages", [](QWidget* widget) { as<CPageBar>(widget)->setCount(7); }},
    {"page", [](QWidget* widget) { as<CPageBar>(widget)->setCurrentIndex(3); }},
    {"text colour", setGreenText<CPageBar>},
    {"background", setBlackBackground<CPageBar>},
};

const Change rowChanges[] = {
    {"text", setText<CPageListWidgetItem>},
    {"short text", setShortText<CPageListWidgetItem>},
    {"selected", [](QWidget* widget) { as<CPageListWidgetItem>(widget)->setSelect(true); }},
    {"hovered", [](QWidget* widget) { as<CPageListWidgetItem>(widget)->setHoverIn(); }},
    {"cleared", [](QWidget* widget) { as<CPageListWidgetItem>(widget)->clear(); }},
};

const Change headerChanges[] = {
    {"title", [](QWidget* widget) { as<CPageListWidgetHeader>(widget)->setTitle(latin("Title")); }},
    {"text", setText<CPageListWidgetHeader>},
};

// ---- the classes

template <typename Widget>
QWidget* make()
{
    return new Widget;
}

/// With a text, so that a font and a palette show from the start.
template <typename Widget>
QWidget* makeWithText()
{
    Widget* widget = new Widget;
    widget->setText(latin("Text"));
    return widget;
}

template <>
QWidget* makeWithText<CCheckBox>()
{
    return new CCheckBox(latin("Text"));
}

QWidget* makeLineEdit()
{
    QWidget* field = new CLineEdit;
    setLineText(field, "Text");
    return field;
}

QWidget* makeRow()
{
    return new CPageListWidgetItem(latin("Text"));
}

struct Class {
    const char* name;
    QWidget* (*make)();
    const Change* changes;
    size_t count;
};

#define CWIDGET_CHANGES(table) table, sizeof table / sizeof table[0]

const Class classes[] = {
    // clang-format off
    {"CPushButton",           makeWithText<CPushButton>, CWIDGET_CHANGES(buttonChanges)},
    {"CKeyButton",            makeWithText<CKeyButton>,  CWIDGET_CHANGES(keyChanges)},
    {"CLabel",                makeWithText<CLabel>,      CWIDGET_CHANGES(labelChanges)},
    {"CCheckBox",             makeWithText<CCheckBox>,   CWIDGET_CHANGES(checkBoxChanges)},
    {"CLineEdit",             makeLineEdit,              CWIDGET_CHANGES(lineEditChanges)},
    {"CComboBox",             make<CComboBox>,           CWIDGET_CHANGES(comboBoxChanges)},
    {"CProgressBar",          make<CProgressBar>,        CWIDGET_CHANGES(progressChanges)},
    {"CClockProgress",        make<CClockProgress>,      CWIDGET_CHANGES(clockChanges)},
    {"CTopTitleArea",         make<CTopTitleArea>,       CWIDGET_CHANGES(titleChanges)},
    {"CWidget",               make<CWidget>,             CWIDGET_CHANGES(widgetChanges)},
    {"CDialog",               make<CDialog>,             CWIDGET_CHANGES(dialogChanges)},
    {"CGraphicsView",         make<CGraphicsView>,       CWIDGET_CHANGES(viewChanges)},
    {"CPageBar",              make<CPageBar>,            CWIDGET_CHANGES(pageBarChanges)},
    {"CPageListWidgetItem",   makeRow,                   CWIDGET_CHANGES(rowChanges)},
    {"CPageListWidgetHeader", make<CPageListWidgetHeader>, CWIDGET_CHANGES(headerChanges)},
    // clang-format on
};

/// A new one, with a size that no layout and no hint changes.
QWidget* made(const Class& row)
{
    QWidget* widget = row.make();
    widget->resize(120, 40);
    return widget;
}

const int commonCount = sizeof commonChanges / sizeof commonChanges[0];

int changeCount(const Class& row)
{
    return commonCount + static_cast<int>(row.count);
}

const Change& change(const Class& row, int number)
{
    return number < commonCount ? commonChanges[number] : row.changes[number - commonCount];
}

/// What \a widget paints over what is there.
QImage renderAlone(QWidget* widget)
{
    return testing::render(widget);
}

/// What \a widget paints over the ground that Qt gives to windows.
QImage renderAsWindow(QWidget* widget)
{
    QImage image = testing::canvas(widget->size());
    widget->render(&image, QPoint(), QRegion(),
                   QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return image;
}

typedef QImage (*Render)(QWidget* widget);

/// Twice: some things are kept only by the second paint.
void paintTwice(QWidget* widget, Render render)
{
    render(widget);
    render(widget);
}

/// One change after another, in every pair of two, with a paint before each of them: what the first
/// pair does not show; empty when all show.
QString staleLook(const Class& row, Render render)
{
    for (int first = 0; first < changeCount(row); ++first) {
        for (int second = 0; second < changeCount(row); ++second) {
            const QScopedPointer<QWidget> painted(made(row));
            const QScopedPointer<QWidget> fresh(made(row));
            paintTwice(painted.data(), render);
            change(row, first).apply(painted.data());
            paintTwice(painted.data(), render);
            change(row, second).apply(painted.data());
            change(row, first).apply(fresh.data());
            change(row, second).apply(fresh.data());
            const QString found = testing::difference(render(painted.data()), render(fresh.data()));
            if (!found.isEmpty())
                return latin(change(row, first).name) + latin(", ") +
                       latin(change(row, second).name) + latin(": ") + found;
        }
    }
    return QString();
}

/// What \a widget paints on a device that has \a ratio pixels for each of its own.
QImage renderTimes(int ratio, QWidget* widget)
{
    QImage image = testing::canvas(widget->size() * ratio);
    testcompat::setPixelRatio(&image, ratio);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace

class tst_stale_looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChangeShows_data();
    void everyChangeShows();
    void everyChangeOfAWindowShows_data();
    void everyChangeOfAWindowShows();
    void everyDeviceGetsItsOwnPixels_data();
    void everyDeviceGetsItsOwnPixels();
};

void tst_stale_looks::everyChangeShows_data()
{
    QTest::addColumn<int>("number");
    for (size_t i = 0; i < sizeof classes / sizeof classes[0]; ++i)
        QTest::newRow(classes[i].name) << static_cast<int>(i);
}

void tst_stale_looks::everyChangeShows()
{
    QFETCH(int, number);
    QCOMPARE(staleLook(classes[number], renderAlone), QString());
}

void tst_stale_looks::everyChangeOfAWindowShows_data()
{
    everyChangeShows_data();
}

void tst_stale_looks::everyChangeOfAWindowShows()
{
    QFETCH(int, number);
    QCOMPARE(staleLook(classes[number], renderAsWindow), QString());
}

void tst_stale_looks::everyDeviceGetsItsOwnPixels_data()
{
    everyChangeShows_data();
}

void tst_stale_looks::everyDeviceGetsItsOwnPixels()
{
    QFETCH(int, number);
    const Class& row = classes[number];
    const int ratios[] = {1, 1, 2, 2, 3, 3, 1};
    for (int first = 0; first < changeCount(row); ++first) {
        const QScopedPointer<QWidget> painted(made(row));
        change(row, first).apply(painted.data());
        for (size_t i = 0; i < sizeof ratios / sizeof ratios[0]; ++i) {
            const testing::InRow inRow(i);
            const QScopedPointer<QWidget> fresh(made(row));
            change(row, first).apply(fresh.data());
            CWIDGET_COMPARE_IMAGES(renderTimes(ratios[i], painted.data()),
                                   renderTimes(ratios[i], fresh.data()));
        }
    }
}

QTEST_MAIN(tst_stale_looks)
#include "tst_stale_looks.moc"
