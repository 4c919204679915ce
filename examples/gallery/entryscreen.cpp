#include "entryscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const int left = 20;
const int columns[] = {20, 150, 360, 530};
const int fieldWidth = 190;
const int rangedWidth = 150;
const int rowPitch = 44;

// One row per keypad: a value for the field without a range, one for the field with it, and the
// range. A general keypad has no range.
const struct Row {
    CKeyPadFactory::KeyPadType type;
    const char* name;
    const char* text;
    const char* rangedText;
    const char* range;
    int minimum;
    int maximum;
} rows[] = {
    // clang-format off
    {CKeyPadFactory::SKP_GENERAL, "General",     "Line 4, filler",  "",     "",                0,     0},
    {CKeyPadFactory::SKP_HEX,     "Hexadecimal", "C0FFEE",          "1F",   "10 to FF",       16,   255},
    {CKeyPadFactory::SKP_BINARY,  "Binary",      "101101",          "11",   "10 to 101",       2,     5},
    {CKeyPadFactory::SKP_DECIMAL, "Decimal",     "1450",            "72",   "-40 to 120",    -40,   120},
    {CKeyPadFactory::SKP_FLOAT,   "Floating",    "3.75",            "0.5",  "not checked",     0,     1},
    // clang-format on
};

} // namespace

EntryScreen::EntryScreen(Panel* panel) : Screen(QLatin1String("Text entry"), panel)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    addHeading(QLatin1String("A keypad for each kind of value"), 12);
    addCaption(QLatin1String("Keypad"), columns[0], 44);
    addCaption(QLatin1String("Without a range"), columns[1], 44);
    addCaption(QLatin1String("With a range"), columns[2], 44);
    addCaption(QLatin1String("Range"), columns[3], 44);
    addKeypadRows(76);
    addHeading(QLatin1String("Other fields"), 310);
    addOtherFields(346);
}

CLineEdit* EntryScreen::field(CKeyPadFactory::KeyPadType type) const
{
    return m_fields.at(type);
}

CLineEdit* EntryScreen::addField(const QString& title, const QString& text, int column, int y)
{
    CLineEdit* field = new CLineEdit(this);
    field->setTitle(title);
    field->setText(text);
    field->setFixedWidth(fieldWidth);
    field->move(columns[column], y);
    connect(field, SIGNAL(textEdited(QString)), this, SLOT(edited(QString)));
    return field;
}

void EntryScreen::addCaption(const QString& text, int x, int y)
{
    CLabel* caption = plainLabel(text, this);
    caption->setTextColor(CWidgetStyle::getColor(CWidgetStyle::Color3));
    caption->setGeometry(x - 2, y, 150, 28);
}

void EntryScreen::addKeypadRows(int y)
{
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i, y += rowPitch) {
        const Row& row = rows[i];
        const QString name = QLatin1String(row.name);
        plainLabel(name, this)->setGeometry(left - 2, y, columns[1] - left, 28);
        CLineEdit* field = addField(name, QLatin1String(row.text), 1, y);
        field->setObjectName(QLatin1String("entry-") + name);
        field->setSKPType(row.type);
        m_fields.append(field);
        if (!*row.range)
            continue;
        const QString title = QString::fromLatin1("%1, %2").arg(name, QLatin1String(row.range));
        CLineEdit* ranged = addField(title, QLatin1String(row.rangedText), 2, y);
        ranged->setObjectName(QLatin1String("range-") + name);
        ranged->setSKPType(row.type);
        ranged->setRange(row.minimum, row.maximum);
        ranged->setFixedWidth(rangedWidth);
        addCaption(QLatin1String(row.range), columns[3], y);
    }
}

void EntryScreen::addOtherFields(int y)
{
    plainLabel(QLatin1String("Read-only"), this)->setGeometry(left - 2, y, 130, 28);
    addField(QLatin1String("Read-only"), QLatin1String("SN 10447-3"), 1, y)->setReadOnly(true);

    plainLabel(QLatin1String("Disabled"), this)->setGeometry(left - 2, y + rowPitch, 130, 28);
    addField(QLatin1String("Disabled"), QLatin1String("Not licensed"), 1, y + rowPitch)
        ->setEnabled(false);

    plainLabel(QLatin1String("Keyboard only"), this)
        ->setGeometry(left - 2, y + 2 * rowPitch, 130, 28);
    addField(QLatin1String("Keyboard only"), QLatin1String("No keypad opens here"), 1,
             y + 2 * rowPitch)
        ->setSKPActive(false);
}

void EntryScreen::edited(const QString& text)
{
    Q_EMIT hint(QString::fromLatin1("Entered: %1").arg(text));
}
