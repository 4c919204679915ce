#ifndef CWIDGET_TESTS_STYLE_STYLEREADING_H
#define CWIDGET_TESTS_STYLE_STYLEREADING_H

#include "support/testing.h"

/// Writing and reading style files, for the tests of what an entry becomes.
namespace stylereading
{

/// A style file with the elements \a widgets.
inline QByteArray file(const QByteArray& widgets)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<root>" + widgets + "</root>\n";
}

inline QByteArray widget(const QByteArray& name, const QByteArray& content)
{
    return "<widget type=\"65635\" name=\"" + name + "\">" + content + "</widget>";
}

inline bool read(const QByteArray& content)
{
    const testing::TemporaryFolder folder;
    return CWidgetStyle::initialize(folder.write(QLatin1String("style.xml"), content));
}

inline WidgetStyle entry(const char* name, bool* ok = nullptr)
{
    return CWidgetStyle::getWidgetStyle(QString::fromLatin1(name), ok);
}

inline bool isDefault(const QFont& font)
{
    return font == QFont() && font.toString() == QFont().toString();
}

} // namespace stylereading

#endif
