#include "keypad/keybutton.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "samples.h"
#include "support/testing.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"

#include <QDir>
#include <QPainter>
#include <QRawFont>
#include <QScopedPointer>
#include <QSysInfo>
#include <functional>

// The pictures are written anew with: cmake --build BUILD --target reference-pictures

namespace
{

const char folder[] = CWIDGET_SOURCE_DIR "/tests/reference/pictures/";
const char madeWith[] = "made-with.txt";
const int gap = 4; // pixels between two states

typedef std::function<void(QWidget*)> Change;

template <class Class, class Value>
Change with(void (Class::*setter)(Value), typename std::decay<Value>::type value)
{
    return [=](QWidget* widget) { (static_cast<Class*>(widget)->*setter)(value); };
}

Change styled(CPushButton::ButtonStyle style, CPushButton::ButtonState state)
{
    return [=](QWidget* widget) {
        CPushButton* const button = static_cast<CPushButton*>(widget);
        button->setStyle(style, true);
        button->updateStatus(state);
    };
}

struct State {
    const char* name;
    Change change;
};

// What a sample of the class shows besides itself, and itself disabled.
QList<State> ownStates(const QString& name)
{
    // clang-format off
    static const struct {
        const char* owner;
        State state;
    } rows[] = {
        {"CPushButton",         {"green pressed",  styled(CPushButton::GreenStyle, CPushButton::Pressed)}},
        {"CPushButton",         {"grey released",  styled(CPushButton::DefaultStyle, CPushButton::Released)}},
        {"CPushButton",         {"grey pressed",   styled(CPushButton::DefaultStyle, CPushButton::Pressed)}},
        {"CPushButton",         {"orange released", styled(CPushButton::OrangeStyle, CPushButton::Released)}},
        {"CPushButton",         {"orange pressed", styled(CPushButton::OrangeStyle, CPushButton::Pressed)}},
        {"CPushButton",         {"red released",   styled(CPushButton::RedStyle, CPushButton::Released)}},
        {"CPushButton",         {"red pressed",    styled(CPushButton::RedStyle, CPushButton::Pressed)}},
        {"CPushButton",         {"fixed",          styled(CPushButton::FixedStyle, CPushButton::Pressed)}},
        {"CLabel",              {"right",          with(&CLabel::setAlignment, Qt::AlignRight | Qt::AlignVCenter)}},
        {"CLabel",              {"cut off",        with(&CLabel::setText, QLatin1String("A text wider than its label"))}},
        {"CCheckBox",           {"unchecked",      with(&CCheckBox::setChecked, false)}},
        {"CCheckBox",           {"no frame",       with(&CCheckBox::setBorderVisible, false)}},
        {"CLineEdit",           {"no frame",       with(&CLineEdit::setBorderVisible, false)}},
        {"CProgressBar",        {"empty",          with(&CProgressBar::setValue, 0)}},
        {"CProgressBar",        {"begun",          with(&CProgressBar::setValue, 20)}},
        {"CProgressBar",        {"full",           with(&CProgressBar::setValue, 100)}},
        {"CProgressBar",        {"one colour",     with(&CProgressBar::setGradientEabled, false)}},
        {"CClockProgress",      {"another hour",   with(&CClockProgress::setValue, 9)}},
        {"CClockProgress",      {"percent",        with(&CClockProgress::setFormat, 2)}},
        {"CPageBar",            {"last page",      with(&CPageBar::setCurrentIndex, 2)}},
        {"CPageBar",            {"no pages",       with(&CPageBar::setCount, 0)}},
        {"CPageWidget",         {"second page",    with(&CPageWidget::setCurrentPage, 1)}},
        {"CPageListWidgetItem", {"selected",       with(&CPageListWidgetItem::setSelect, true)}},
        {"CComboBox",           {"another entry",  with(&CComboBox::setCurrentIndex, 3)}},
        {"CComboBox",           {"no frame",       with(&CComboBox::setBorderVisible, false)}},
        {"CParmLabel",          {"wrapped",        with(&CParmLabel::setWrapMode, CLabel::CharWrap)}},
        {"CParmLineEdit",       {"value disabled", with(&CParmLineEdit::setEnable, false)}},
        {"CParmCheckBox",       {"unchecked",      with(&CParmCheckBox::setChecked, false)}},
        {"CParmCheckBox",       {"no frame",       with(&CParmCheckBox::setBorderVisible, false)}},
        {"CKeyButton",          {"backspace",      with(&CKeyButton::setKey, static_cast<int>(Qt::Key_Backspace))}},
        {"CSoftKeyPad",         {"hexadecimal",    with(&CSoftKeyPad::setSKPType, CKeyPadFactory::SKP_HEX)}},
        {"CSoftKeyPad",         {"binary",         with(&CSoftKeyPad::setSKPType, CKeyPadFactory::SKP_BINARY)}},
        {"CSoftKeyPad",         {"decimal",        with(&CSoftKeyPad::setSKPType, CKeyPadFactory::SKP_DECIMAL)}},
        {"CSoftKeyPad",         {"floating point", with(&CSoftKeyPad::setSKPType, CKeyPadFactory::SKP_FLOAT)}},
    };
    // clang-format on
    QList<State> states;
    for (const auto& row : rows) {
        if (name == QLatin1String(row.owner))
            states.append(row.state);
    }
    return states;
}

QList<State> statesOf(const QString& name)
{
    QList<State> states;
    states.append({"as it is", Change()});
    states.append({"disabled", [](QWidget* widget) { widget->setEnabled(false); }});
    return states + ownStates(name);
}

QImage pictureOf(const QString& name, const State& state)
{
    const QScopedPointer<QWidget> widget(samples::create(name));
    if (state.change)
        state.change(widget.data());
    testing::render(widget.data()); // lays its parts out
    return testing::render(widget.data());
}

/// All states of a class, one below the other.
QImage sheetOf(const QString& name)
{
    QList<QImage> pictures;
    QSize size(0, 0);
    const QList<State> states = statesOf(name);
    for (int i = 0; i < states.size(); ++i) {
        pictures.append(pictureOf(name, states.at(i)));
        size.setWidth(qMax(size.width(), pictures.last().width()));
        size.rheight() += pictures.last().height() + gap;
    }
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::magenta);
    QPainter painter(&sheet);
    int y = 0;
    for (int i = 0; i < pictures.size(); ++i) {
        painter.drawImage(0, y, pictures.at(i));
        y += pictures.at(i).height() + gap;
    }
    return sheet;
}

/// What the pixels depend on besides the library: Qt, the font, and the instructions that the
/// processor has for painting.
QString surroundings()
{
    const QRawFont font = QRawFont::fromFont(testing::testFont(12));
    return QString::fromLatin1("Qt %1, %2 %3, %4\n")
        .arg(QLatin1String(qVersion()), font.familyName(),
             QString::fromLatin1(font.fontTable("head").mid(4, 8).toHex()),
             QSysInfo::currentCpuArchitecture());
}

QString pathOf(const QString& name)
{
    return QLatin1String(folder) + name + QLatin1String(".png");
}

bool write()
{
    bool good = QDir().mkpath(QLatin1String(folder));
    QFile file(QLatin1String(folder) + QLatin1String(madeWith));
    good = good && file.open(QIODevice::WriteOnly) && file.write(surroundings().toUtf8()) > 0;
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        good = sheetOf(names.at(i)).save(pathOf(names.at(i)), "PNG", 0) && good;
    return good;
}

} // namespace

/// Each class in each of its states, as it was when somebody last looked at it.
class tst_reference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyStateDiffers_data();
    void everyStateDiffers();
    void pictures_data();
    void pictures();
    void noOtherPictures();
};

void tst_reference::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    if (qgetenv("CWIDGET_WRITE_REFERENCE") == "1")
        QVERIFY(write());
}

void tst_reference::pictures_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i);
}

void tst_reference::pictures()
{
    QFETCH(QString, name);
    const QString made =
        QString::fromUtf8(testing::contentOf(QLatin1String(folder) + QLatin1String(madeWith)));
    QVERIFY(!made.isEmpty());
    if (made != surroundings())
        CWIDGET_SKIP(qPrintable(QString::fromLatin1("the pictures were made with %1 but this is %2")
                                    .arg(made.trimmed(), surroundings().trimmed())));
    const QImage expected(pathOf(name));
    QVERIFY(!expected.isNull());
    CWIDGET_COMPARE_IMAGES(sheetOf(name), expected);
}

void tst_reference::everyStateDiffers_data()
{
    pictures_data();
}

/// Else a state would show nothing of its own. Being disabled is no state that each class shows.
void tst_reference::everyStateDiffers()
{
    QFETCH(QString, name);
    const QImage plain = pictureOf(name, statesOf(name).first());
    const QList<State> states = ownStates(name);
    for (int i = 0; i < states.size(); ++i)
        QVERIFY2(pictureOf(name, states.at(i)) != plain, states.at(i).name);
}

void tst_reference::noOtherPictures()
{
    const QStringList files =
        QDir(QLatin1String(folder)).entryList(QStringList(QLatin1String("*.png")));
    QCOMPARE(files.size(), samples::names().size());
    qint64 size = 0;
    for (int i = 0; i < files.size(); ++i)
        size += QFileInfo(QLatin1String(folder) + files.at(i)).size();
    QVERIFY2(size < 300 * 1024, qPrintable(QString::number(size)));
}

QTEST_MAIN(tst_reference)
#include "tst_reference.moc"
