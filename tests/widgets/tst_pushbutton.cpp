#include "support/rows.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/pushbutton.h"

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>

using testing::styleOf;
using testing::testFont;

namespace
{

QImage strip(const char* name, int x)
{
    return QImage(QLatin1String(":/images/") + QLatin1String(name)).copy(x, 0, 120, 40);
}

/// Deletes its button when that is pressed or clicked.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(CPushButton* button) : m_button(button)
    {
    }

public Q_SLOTS:
    void deleteButton()
    {
        delete m_button;
    }

private:
    CPushButton* m_button;
};

} // namespace

class tst_pushbutton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void numbers();
    void initializeReturnsTrue();
    void buttonDeletedByItsOwnSignals();
    void qtsSignals();
    void styles_data();
    void styles();
    void styledButtonKeepsItsPictureWhenSelected();
    void qtStyleCanStillBeSet();
    void fontComesFromTheStyleFile();
    void widgetStyle();
    void widgetStyleIsOffWithoutAutoStyle();
};

void tst_pushbutton::defaults()
{
    CPushButton button;
    QCOMPARE(button.size(), QSize(120, 40));
    QCOMPARE(button.minimumSize(), QSize(120, 40));
    QCOMPARE(button.maximumSize(), QSize(120, 40));
    QVERIFY(button.isFlat());
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    QVERIFY(button.autoFillBackground());
    QVERIFY(!button.isSelected());
    QVERIFY(button.getText().isEmpty());
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
    QVERIFY(!button.getBorderColor().isValid());
    QCOMPARE(button.getBackgroundColor(), QColor(99, 94, 128, 255));
    QVERIFY(button.getBackground().isNull());
    QVERIFY(button.isAutoStyleEnabled());
    const QMetaObject& meta = CPushButton::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 0);
}

void tst_pushbutton::numbers()
{
    QCOMPARE(static_cast<int>(CPushButton::Pressed), 0);
    QCOMPARE(static_cast<int>(CPushButton::Released), 1);
    QCOMPARE(static_cast<int>(CPushButton::Selected), 2);
    QCOMPARE(static_cast<int>(CPushButton::PressedPixmap), 1);
    QCOMPARE(static_cast<int>(CPushButton::ReleasedPixmap), 2);
    QCOMPARE(static_cast<int>(CPushButton::SelectedPixmap), 3);
    QCOMPARE(static_cast<int>(CPushButton::PressedTextColor), 4);
    QCOMPARE(static_cast<int>(CPushButton::ReleasedTextColor), 5);
    QCOMPARE(static_cast<int>(CPushButton::SelectedTextColor), 6);
    QCOMPARE(static_cast<int>(CPushButton::DefaultStyle), 0);
    QCOMPARE(static_cast<int>(CPushButton::GreenStyle), 1);
    QCOMPARE(static_cast<int>(CPushButton::OrangeStyle), 2);
    QCOMPARE(static_cast<int>(CPushButton::RedStyle), 3);
    QCOMPARE(static_cast<int>(CPushButton::FixedStyle), 4);
}

void tst_pushbutton::initializeReturnsTrue()
{
    CPushButton button;
    button.setFixedSize(10, 10);
    button.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(button.initialize());
    QCOMPARE(button.size(), QSize(120, 40));
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

void tst_pushbutton::buttonDeletedByItsOwnSignals()
{
    const char* const signals_[] = {SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked())};
    for (size_t i = 0; i < sizeof signals_ / sizeof signals_[0]; ++i) {
        const testing::InRow inRow(signals_[i]);
        QPointer<CPushButton> button = new CPushButton;
        Deleter deleter(button);
        QVERIFY(connect(button, signals_[i], &deleter, SLOT(deleteButton())));
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(button, &press);
        if (button)
            QApplication::sendEvent(button, &release);
        QVERIFY(button.isNull());
    }
}

void tst_pushbutton::qtsSignals()
{
    CPushButton button;
    QSignalSpy pressed(&button, SIGNAL(pressed()));
    QSignalSpy released(&button, SIGNAL(released()));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    QSignalSpy toggled(&button, SIGNAL(toggled(bool)));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(toggled.count(), 0);
}

void tst_pushbutton::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("strip");
    QTest::addColumn<int>("released");
    QTest::addColumn<int>("pressed");
    const struct {
        int style;
        const char* color;
        int released;
        int pressed;
    } rows[] = {
        // clang-format off
        { 0, "GRAY",     0, 120},
        { 1, "GREEN",    0, 120},
        { 2, "ORANGE",   0, 120},
        { 3, "RED",      0, 120},
        { 4, "GRAY",   240, 240},
        { 5, "GRAY",     0, 120},
        {-1, "GRAY",     0, 120},
        // clang-format on
    };
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(qPrintable(QString::number(rows[i].style)))
            << rows[i].style
            << QString::fromLatin1("RCTB_BUTTON%1_3states.png").arg(QLatin1String(rows[i].color))
            << rows[i].released << rows[i].pressed;
}

void tst_pushbutton::styles()
{
    QFETCH(int, style);
    QFETCH(QString, strip);
    QFETCH(int, released);
    QFETCH(int, pressed);
    for (int big = 0; big < 2; ++big) {
        const QByteArray name = (big ? "BIG_" : "") + strip.toLatin1();
        CPushButton button;
        button.setStyle(static_cast<CPushButton::ButtonStyle>(style), !big);
        QCOMPARE(button.getTextColor(), QColor(Qt::white));
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), released));
        QTest::mousePress(&button, Qt::LeftButton);
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), pressed));
        QTest::mouseRelease(&button, Qt::LeftButton);
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), released));
        QCOMPARE(button.getTextColor(), QColor(Qt::white));
    }
}

void tst_pushbutton::styledButtonKeepsItsPictureWhenSelected()
{
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    const QImage released = button.getBackground().toImage();
    button.setSelected(true);
    CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(), released);
    QCOMPARE(button.getTextColor(), QColor(Qt::white));
}

void tst_pushbutton::qtStyleCanStillBeSet()
{
    CPushButton button;
    button.setStyle(QApplication::style());
    QVERIFY(button.getBackground().isNull());
}

void tst_pushbutton::fontComesFromTheStyleFile()
{
    const testing::StyleFile file("CPushButton", 23);
    CPushButton button;
    QCOMPARE(button.font().pixelSize(), 23);
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
    QCOMPARE(button.getBackgroundColor(), QColor(99, 94, 128));
}

void tst_pushbutton::widgetStyle()
{
    CPushButton button;
    WidgetStyle style = styleOf(Style::FieldAll, testFont(17));
    style.styles.append(styleOf(Style::FieldAll, testFont(18)).styles);
    button.setWidgetStyle(style);
    QCOMPARE(button.font().pixelSize(), 18);
    button.setWidgetStyle(styleOf(Style::FieldName, testFont(19)));
    button.setWidgetStyle(styleOf(Style::FieldValue, testFont(20)));
    QCOMPARE(button.font().pixelSize(), 18);
}

void tst_pushbutton::widgetStyleIsOffWithoutAutoStyle()
{
    CPushButton button;
    const QFont before = button.font();
    button.setAutoStyleEnabled(false);
    button.setWidgetStyle(styleOf(Style::FieldAll, testFont(17)));
    QCOMPARE(button.font(), before);
}

QTEST_MAIN(tst_pushbutton)
#include "tst_pushbutton.moc"
