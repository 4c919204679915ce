// A keypad: ours, one of stock buttons with the same pictures, and one that is a single widget.

#include "bench.h"

#include "keypad/genkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/softkeypad.h"

#include <QDialog>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace
{

const QPoint inKey(10, 10);

/// What a key of our grid is, for the grids that rebuild it.
struct KeyPlace {
    QRect rect;
    QString text;
    QPixmap released;
    QPixmap pressed;
};

QList<KeyPlace> keyPlaces()
{
    CSoftKeyPad pad(CKeyPadFactory::SKP_GENERAL);
    pad.show();
    bench::settle();
    QList<KeyPlace> places;
    const QList<CKeyButton*> keys = pad.findChildren<CKeyButton*>();
    for (int i = 0; i < keys.size(); ++i) {
        KeyPlace place;
        place.rect = QRect(keys.at(i)->mapTo(&pad, QPoint()), keys.at(i)->size());
        place.text = keys.at(i)->getText();
        keys.at(i)->updateStatus(CPushButton::Pressed);
        place.pressed = keys.at(i)->getBackground();
        keys.at(i)->updateStatus(CPushButton::Released);
        place.released = keys.at(i)->getBackground();
        places.append(place);
    }
    return places;
}

const QList<KeyPlace>& places()
{
    static const QList<KeyPlace> all = keyPlaces();
    return all;
}

template <bool hasPictures>
class StockKeypad : public QDialog
{
public:
    StockKeypad() : m_edit(new QTextEdit(this))
    {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        setFixedSize(519, 390);
        m_edit->setGeometry(25, 5, 469, 82);
        for (int i = 0; i < places().size(); ++i) {
            QPushButton* key = new QPushButton(places().at(i).text, this);
            key->setFocusPolicy(Qt::NoFocus);
            key->setGeometry(places().at(i).rect);
            m_keys.append(key);
        }
        if (hasPictures)
            setStyleSheet(sheet());
    }

    QPushButton* key(int number)
    {
        return m_keys.at(number);
    }

    void type(int number)
    {
        m_edit->insertPlainText(m_keys.at(number)->text());
    }

private:
    static QString sheet()
    {
        static bench::PictureFiles files;
        static const QString text =
            QString::fromLatin1("QDialog{background:black}"
                                "QPushButton{color:white;border-image:url(%1)}"
                                "QPushButton:pressed{border-image:url(%2)}")
                .arg(files.path(places().at(0).released, QLatin1String("released")))
                .arg(files.path(places().at(0).pressed, QLatin1String("pressed")));
        return text;
    }

    QTextEdit* m_edit;
    QList<QPushButton*> m_keys;
};

class HandKeypad : public QWidget
{
public:
    HandKeypad() : m_pressed(-1)
    {
        setFixedSize(519, 390);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    void setPressed(int number)
    {
        update(places().at(number >= 0 ? number : m_pressed).rect);
        m_pressed = number;
    }

    void type(int number)
    {
        m_text += places().at(number).text;
        update(field());
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), Qt::black);
        if (event->rect().intersects(field())) {
            painter.fillRect(field(), Qt::white);
            painter.drawText(field(), Qt::AlignRight | Qt::AlignVCenter, m_text.right(40));
        }
        painter.setPen(Qt::white);
        for (int i = 0; i < places().size(); ++i) {
            const KeyPlace& key = places().at(i);
            if (!event->rect().intersects(key.rect))
                continue;
            painter.drawPixmap(key.rect, i == m_pressed ? key.pressed : key.released);
            painter.drawText(key.rect, Qt::AlignCenter, key.text);
        }
    }

private:
    static QRect field()
    {
        return QRect(25, 5, 469, 82);
    }

    int m_pressed;
    QString m_text;
};

const int letter = 15; // of the keys, in the middle of the grid

// ---- the whole grid

void repaintOurs(benchmark::State& state)
{
    CGenKeyPad grid;
    grid.show();
    bench::settle();
    while (state.KeepRunning())
        bench::repaintAll(&grid);
}

template <typename Keypad>
void repaintOther(benchmark::State& state)
{
    Keypad keypad;
    keypad.show();
    bench::settle();
    while (state.KeepRunning())
        bench::repaintAll(&keypad);
}

// ---- one key

void touchOurs(benchmark::State& state)
{
    CGenKeyPad grid;
    grid.show();
    CKeyButton* key = grid.findChildren<CKeyButton*>().at(letter);
    bench::settle();
    while (state.KeepRunning()) {
        bench::press(key, inKey);
        bench::settle();
        bench::release(key, inKey);
        bench::settle();
    }
}

template <bool hasPictures>
void touchStock(benchmark::State& state)
{
    StockKeypad<hasPictures> keypad;
    keypad.show();
    bench::settle();
    while (state.KeepRunning()) {
        bench::press(keypad.key(letter), inKey);
        bench::settle();
        bench::release(keypad.key(letter), inKey);
        bench::settle();
    }
}

void touchByHand(benchmark::State& state)
{
    HandKeypad keypad;
    keypad.show();
    bench::settle();
    while (state.KeepRunning()) {
        keypad.setPressed(letter);
        bench::settle();
        keypad.setPressed(-1);
        bench::settle();
    }
}

// ---- a letter; the entry is emptied now and then

const int longestEntry = 30;

void typeOurs(benchmark::State& state)
{
    CSoftKeyPad keypad(CKeyPadFactory::SKP_GENERAL);
    keypad.show();
    CKeyButton* keys[] = {keypad.findChildren<CKeyButton*>().at(letter),
                          keypad.findChildren<CKeyButton*>().at(letter + 7)};
    bench::settle();
    int count = 0;
    while (state.KeepRunning()) {
        CKeyButton* key = keys[count % 2];
        bench::press(key, inKey);
        bench::settle();
        bench::release(key, inKey);
        bench::settle();
        if (++count % longestEntry == 0)
            keypad.clearInput();
    }
}

template <bool hasPictures>
void typeStock(benchmark::State& state)
{
    StockKeypad<hasPictures> keypad;
    keypad.show();
    bench::settle();
    int count = 0;
    while (state.KeepRunning()) {
        const int number = letter + 7 * (count % 2);
        bench::press(keypad.key(number), inKey);
        keypad.type(number);
        bench::settle();
        bench::release(keypad.key(number), inKey);
        bench::settle();
        if (++count % longestEntry == 0)
            keypad.template findChild<QTextEdit*>()->clear();
    }
}

void typeByHand(benchmark::State& state)
{
    HandKeypad keypad;
    keypad.show();
    bench::settle();
    int count = 0;
    while (state.KeepRunning()) {
        const int number = letter + 7 * (count++ % 2);
        keypad.setPressed(number);
        keypad.type(number);
        bench::settle();
        keypad.setPressed(-1);
        bench::settle();
    }
}

// ---- opening

CSoftKeyPad* newOurs()
{
    return new CSoftKeyPad(CKeyPadFactory::SKP_GENERAL);
}

template <bool hasPictures>
QWidget* newStock()
{
    return new StockKeypad<hasPictures>;
}

template <typename Maker>
void open(benchmark::State& state, Maker maker, bool first)
{
    places();
    delete maker();
    while (state.KeepRunning()) {
        state.PauseTiming();
        if (first)
            QPixmapCache::clear();
        state.ResumeTiming();
        QWidget* keypad = maker();
        keypad->show();
        bench::settle();
        state.PauseTiming();
        delete keypad;
        bench::settle();
        state.ResumeTiming();
    }
}

void openOursFirst(benchmark::State& state)
{
    open(state, newOurs, true);
}

void openOursAgain(benchmark::State& state)
{
    open(state, newOurs, false);
}

template <bool hasPictures>
void openStockFirst(benchmark::State& state)
{
    open(state, newStock<hasPictures>, true);
}

template <bool hasPictures>
void openStockAgain(benchmark::State& state)
{
    open(state, newStock<hasPictures>, false);
}

} // namespace

void bench::addKeys()
{
    add("general grid, full repaint", "hand", repaintOther<HandKeypad>);
    add("general grid, full repaint", "stock", repaintOther<StockKeypad<false>>);
    add("general grid, full repaint", "sheet", repaintOther<StockKeypad<true>>);
    add("general grid, full repaint", "ours", repaintOurs);
    add("key pressed and released", "hand", touchByHand);
    add("key pressed and released", "stock", touchStock<false>);
    add("key pressed and released", "sheet", touchStock<true>);
    add("key pressed and released", "ours", touchOurs);
    add("letter typed, whole dialog", "hand", typeByHand);
    add("letter typed, whole dialog", "stock", typeStock<false>);
    add("letter typed, whole dialog", "sheet", typeStock<true>);
    add("letter typed, whole dialog", "ours", typeOurs);
    add("keypad, first open", "stock", openStockFirst<false>);
    add("keypad, first open", "sheet", openStockFirst<true>);
    add("keypad, first open", "ours", openOursFirst);
    add("keypad, open again", "stock", openStockAgain<false>);
    add("keypad, open again", "sheet", openStockAgain<true>);
    add("keypad, open again", "ours", openOursAgain);
}
