#ifndef CWIDGET_TESTS_SUPPORT_PARMTESTING_H
#define CWIDGET_TESTS_SUPPORT_PARMTESTING_H

#include "support/stylefile.h"
#include "widgets/label.h"

#include <QLayout>

// What the tests of the parameter fields share.
namespace parmtesting
{

/// The entries of a style file, one bit each.
enum Entry {
    NameEntry = 1,
    ValueEntry = 2,
    AllEntry = 4,
    EveryCombination = 8
};

// Each entry has a size and colours of its own.
enum Size {
    NameSize = 11,
    ValueSize = 12,
    AllSize = 13
};

/// How a label is to look.
struct LabelLook {
    QString text;
    QFont font;
    QColor background;
    QColor textColor;
    int borderWidth;
    QColor borderColor;
    Qt::Alignment alignment;
    CLabel::WrapMode wrapMode;

    LabelLook()
        : textColor(Qt::black),
          borderWidth(0),
          borderColor(Qt::black),
          alignment(Qt::AlignLeft | Qt::AlignVCenter),
          wrapMode(CLabel::NoWrap)
    {
    }
};

/// The untouched name label of a field: black on grey.
inline LabelLook nameLook(const QString& text)
{
    LabelLook look;
    look.text = text;
    look.background = QColor(0xB0, 0xB0, 0xB0);
    return look;
}

/// What a label of that look paints in the size of \a label.
inline QImage picture(const LabelLook& look, const CLabel* label)
{
    CLabel reference;
    reference.setFixedSize(label->width(), label->height());
    reference.setText(look.text);
    reference.setFont(look.font);
    reference.setBackgroundColor(look.background);
    reference.setTextColor(look.textColor);
    reference.setBorderWidth(look.borderWidth);
    reference.setBorderColor(look.borderColor);
    reference.setAlignment(look.alignment);
    reference.setWrapMode(look.wrapMode);
    return testing::render(&reference);
}

/// The name label of a field is its first one, the value label its second.
inline CLabel* label(const QWidget* field, int number = 0)
{
    return field->findChildren<CLabel*>().value(number);
}

inline QFont entryFont(int size, bool bold)
{
    return testing::testFont(size, bold);
}

inline void styleByName(LabelLook* look)
{
    look->font = entryFont(NameSize, true);
    look->textColor = QColor(0xFF, 0x00, 0x00);
    look->background = QColor(0x00, 0xFF, 0x00);
}

inline void styleByAll(LabelLook* look)
{
    look->font = entryFont(AllSize, true);
    look->textColor = QColor(0x00, 0xFF, 0xFF);
    look->background = QColor(0x80, 0x00, 0x80);
}

/// The elements of the given entries, each with its size and its colours.
inline QByteArray fieldsOf(int entries)
{
    QByteArray text;
    if (entries & AllEntry)
        text += testing::StyleFile::field("FieldAll", AllSize, "#00FFFF", "#800080");
    if (entries & ValueEntry)
        text += testing::StyleFile::field("FieldValue", ValueSize, "#0000FF", "#FFFF00");
    if (entries & NameEntry)
        text += testing::StyleFile::field("FieldName", NameSize, "#FF0000", "#00FF00");
    return text;
}

/// Empty when the layout of \a field has these margins and no gaps; else what is wrong.
inline QString layoutFault(const QWidget* field, int right)
{
    if (!field->layout())
        return QLatin1String("no layout");
    int margins[4];
    field->layout()->getContentsMargins(&margins[0], &margins[1], &margins[2], &margins[3]);
    if (margins[0] != 0 || margins[1] != 0 || margins[2] != right || margins[3] != 2)
        return QLatin1String("wrong margins");
    if (field->layout()->spacing() != 0 || field->layout()->count() != 2)
        return QLatin1String("wrong spacing or count");
    return QString();
}

} // namespace parmtesting

/// Whether the parts of a fixture look as it says.
#define CWIDGET_COMPARE_LOOKS(fixture)                                                             \
    do {                                                                                           \
        const QString fault = (fixture).fault();                                                   \
        QVERIFY2(fault.isEmpty(), qPrintable(fault));                                              \
    } while (false)

#endif
