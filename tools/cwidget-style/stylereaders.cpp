#include "stylereaders.h"

namespace stylereaders
{

namespace
{

const Reader readers[] = {
    // clang-format off
    // entry                   taken when        FieldName FieldValue FieldAll
    {"CLabel",                  WhenConstructed, {Nothing, Nothing, Font}},
    {"CPushButton",             WhenConstructed, {Nothing, Nothing, Font}},
    {"CCheckBox",               WhenConstructed, {Nothing, Nothing, Font}},
    {"CLineEdit",               WhenConstructed, {Nothing, Nothing, Font}},
    {"CComboBox",               WhenConstructed, {Nothing, Nothing, Font}},
    {"CTopTitleArea",           WhenConstructed, {Nothing, Nothing, Font}},
    {"CPageBar",                WhenConstructed, {Nothing, Nothing, Font}},
    {"CPageWidget",             WhenConstructed, {Nothing, Nothing, Font}},
    {"CParmLabel",              WhenConstructed, {All,     Font,    All}},
    {"CParmLineEdit",           WhenConstructed, {All,     Font,    Nothing}},
    {"CParmComboBox",           WhenConstructed, {All,     Font,    Nothing}},
    {"CParmCheckBox",           WhenConstructed, {All,     Font,    Nothing}},
    {"CWidget",                 WhenUpdated,     {Nothing, Nothing, Font}},
    {"CClockProgress",          WhenUpdated,     {Nothing, Nothing, Font}},
    {"CPageListWidget",         WhenUpdated,     {Nothing, Nothing, Font}},
    {"CPageListWidgetHeader",   WhenUpdated,     {Nothing, Nothing, Font}},
    {"CPageListWidgetItem",     WhenUpdated,     {Nothing, Nothing, Font}},
    {"CPageListWidgetItemArea", WhenUpdated,     {Nothing, Nothing, Font}},
    {"CAbstractKeyPad",         WhenUpdated,     {Nothing, Nothing, Font}},
    {"CGenKeyPad",              WhenUpdated,     {Nothing, Nothing, Font}},
    {"CHexKeyPad",              WhenUpdated,     {Nothing, Nothing, Font}},
    {"CNumKeyPad",              WhenUpdated,     {Nothing, Nothing, Font}},
    // clang-format on
};

const Style::Field fields[] = {Style::FieldName, Style::FieldValue, Style::FieldAll};
const char* const elements[] = {"FieldName", "FieldValue", "FieldAll"};

} // namespace

const Reader* find(const QString& name)
{
    for (const Reader& reader : readers) {
        if (name == QLatin1String(reader.name))
            return &reader;
    }
    return nullptr;
}

QStringList names()
{
    QStringList all;
    for (const Reader& reader : readers)
        all.append(QLatin1String(reader.name));
    return all;
}

int partsOf(const Reader& reader, Style::Field field)
{
    return reader.parts[field];
}

QString elementOf(Style::Field field)
{
    return QLatin1String(elements[field]);
}

QStringList fieldsOf(const Reader& reader)
{
    QStringList taken;
    for (const Style::Field field : fields) {
        if (partsOf(reader, field) != Nothing)
            taken.append(elementOf(field));
    }
    return taken;
}

} // namespace stylereaders
