#include "entryscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

// An open keypad covers the columns but the last, whose ranges can be read while it is open.
const int columns[] = {layout::margin, 140, 356, 552};
const int fieldWidth = 192;
const int rangedWidth = 176;
const int rangeWidth = 104;
const int rowPitch = 40;
const int rowHeight = 28;
const QColor dimColor(0x5A, 0x5E, 0x70);

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
    addHeading(QLatin1String("A keypad for each kind of value"), layout::firstHeading);
    addColumnCaption(QLatin1String("Keypad"), 0);
    addColumnCaption(QLatin1String("Without a range"), 1);
    addColumnCaption(QLatin1String("With a range"), 2);
    addColumnCaption(QLatin1String("Range"), 3);
    addKeypadRows(92);
    addHeading(QLatin1String("Other fields"), 300);
    addOtherFields(332);
    connect(addMainButton(QLatin1String("Save")), SIGNAL(clicked()), this, SLOT(saved()));
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

void EntryScreen::addColumnCaption(const QString& text, int column)
{
    addCaption(text, QRect(columns[column], 64, rangeWidth, rowHeight));
}

void EntryScreen::addName(const QString& name, int y)
{
    addCaption(name, QRect(columns[0], y, columns[1] - columns[0], rowHeight))
        ->setTextColor(Qt::black);
}

void EntryScreen::addKeypadRows(int y)
{
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i, y += rowPitch) {
        const Row& row = rows[i];
        const QString name = QLatin1String(row.name);
        addName(name, y);
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
        addCaption(QLatin1String(row.range), QRect(columns[3], y, rangeWidth, rowHeight));
    }
}

void EntryScreen::addOtherFields(int y)
{
    addName(QLatin1String("Read-only"), y);
    addField(QLatin1String("Read-only"), QLatin1String("SN 10447-3"), 1, y)->setReadOnly(true);

    addName(QLatin1String("Disabled"), y + rowPitch);
    CLineEdit* disabled =
        addField(QLatin1String("Disabled"), QLatin1String("Not licensed"), 1, y + rowPitch);
    QPalette dim = disabled->palette();
    dim.setColor(QPalette::Disabled, QPalette::Text, dimColor);
    disabled->setPalette(dim);
    disabled->setEnabled(false);

    addName(QLatin1String("Keyboard only"), y + 2 * rowPitch);
    addField(QLatin1String("Keyboard only"), QLatin1String("No keypad opens here"), 1,
             y + 2 * rowPitch)
        ->setSKPActive(false);
}

void EntryScreen::saved()
{
    Q_EMIT hint(QLatin1String("Saved"));
}

void EntryScreen::edited(const QString& text)
{
    Q_EMIT hint(QString::fromLatin1("Entered: %1").arg(text));
}
