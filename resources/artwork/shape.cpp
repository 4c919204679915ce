#include "shape.h"

#include "palette.h"

#include <QByteArray>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

const int MostArguments = 6;

struct Layer {
    bool fill;
    bool stroke;
    QRgb fillColour;
    QRgb strokeColour;
    qreal width;
    Qt::PenCapStyle cap;
    Qt::PenJoinStyle join;
};

typedef void (*AddSegment)(QPainterPath& path, const qreal* a);

void addMove(QPainterPath& path, const qreal* a)
{
    path.moveTo(a[0], a[1]);
}

void addLine(QPainterPath& path, const qreal* a)
{
    path.lineTo(a[0], a[1]);
}

void addCurve(QPainterPath& path, const qreal* a)
{
    path.cubicTo(a[0], a[1], a[2], a[3], a[4], a[5]);
}

void addClose(QPainterPath& path, const qreal*)
{
    path.closeSubpath();
}

void addCircle(QPainterPath& path, const qreal* a)
{
    path.addEllipse(QPointF(a[0], a[1]), a[2], a[2]);
}

void addRectangle(QPainterPath& path, const qreal* a)
{
    path.addRoundedRect(QRectF(a[0], a[1], a[2], a[3]), a[4], a[4]);
}

void addArc(QPainterPath& path, const qreal* a)
{
    const QRectF circle(a[0] - a[2], a[1] - a[2], 2 * a[2], 2 * a[2]);
    path.arcMoveTo(circle, a[3]);
    path.arcTo(circle, a[3], a[4]);
}

struct Command {
    char letter;
    int arguments;
    AddSegment add;
};

// clang-format off
const Command Commands[] = {
    { 'M', 2, addMove },
    { 'L', 2, addLine },
    { 'C', 6, addCurve },
    { 'Z', 0, addClose },
    { 'O', 3, addCircle },
    { 'R', 5, addRectangle },
    { 'A', 5, addArc },
};
// clang-format on

const int CommandCount = sizeof(Commands) / sizeof(Commands[0]);

const Command* commandOf(char letter)
{
    for (int i = 0; i < CommandCount; ++i) {
        if (Commands[i].letter == letter)
            return &Commands[i];
    }
    qFatal("Unknown shape command '%c'", letter);
    return nullptr;
}

QRgb colourOf(char letter, const Scheme& scheme)
{
    switch (letter) {
    case 'i':
        return scheme.ink;
    case 'a':
        return scheme.accent;
    case 'p':
        return scheme.paper;
    default:
        return scheme.shade;
    }
}

Layer layerOf(const QByteArray& style, const Scheme& scheme)
{
    const char mode = style.at(0);
    const int strokeLetter = mode == 'D' ? 2 : 1;
    Layer layer;
    layer.fill = mode == 'F' || mode == 'D';
    layer.stroke = mode != 'F';
    layer.fillColour = colourOf(style.at(1), scheme);
    layer.strokeColour = layer.stroke ? colourOf(style.at(strokeLetter), scheme) : 0;
    layer.width = layer.stroke ? style.mid(strokeLetter + 1).toDouble() : 0;
    layer.cap = mode == 'B' ? Qt::FlatCap : Qt::RoundCap;
    layer.join = mode == 'B' ? Qt::MiterJoin : Qt::RoundJoin;
    return layer;
}

QPainterPath pathOf(const QList<QByteArray>& words)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (int word = 1; word < words.count();) {
        const Command* command = commandOf(words.at(word++).at(0));
        qreal arguments[MostArguments];
        for (int i = 0; i < command->arguments; ++i)
            arguments[i] = words.at(word++).toDouble();
        command->add(path, arguments);
    }
    return path;
}

} // namespace

void drawShape(QPainter& painter, const char* text, const Scheme& scheme)
{
    const QList<QByteArray> layers = QByteArray(text).split(';');
    for (int i = 0; i < layers.count(); ++i) {
        const QList<QByteArray> words = layers.at(i).simplified().split(' ');
        const Layer layer = layerOf(words.first(), scheme);
        const QPainterPath path = pathOf(words);
        if (layer.fill)
            painter.fillPath(path, QColor::fromRgba(layer.fillColour));
        if (layer.stroke)
            painter.strokePath(path, QPen(QBrush(QColor::fromRgba(layer.strokeColour)), layer.width,
                                          Qt::SolidLine, layer.cap, layer.join));
    }
}
