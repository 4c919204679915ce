#ifndef CWIDGET_TESTS_SUPPORT_STYLEFILE_H
#define CWIDGET_TESTS_SUPPORT_STYLEFILE_H

#include "support/testing.h"

namespace testing
{

/// Fills the style table from a real file with an entry for one class, and empties that entry at
/// the end of its life.
class StyleFile
{
public:
    /// With the elements \a fields, for which field() is of use.
    StyleFile(const char* className, const QByteArray& fields) : m_className(className)
    {
        load(fields);
    }

    /// For all of the widget: a bold font of \a pixelSize, and colours that are to be ignored.
    StyleFile(const char* className, int pixelSize) : m_className(className)
    {
        load(field("FieldAll", pixelSize, "#ff0000", "#00ff00"));
    }

    ~StyleFile()
    {
        load(QByteArray());
    }

    /// The element \a name, with a bold font and with colours.
    static QByteArray field(const char* name, int pixelSize, const char* foreground,
                            const char* background)
    {
        QByteArray text = "<%0><font family=\"Arial\" size=\"%1\" bold=\"true\"/>"
                          "<color foreground-color=\"%2\" background-color=\"%3\"/></%0>";
        text.replace("%0", name);
        text.replace("%1", QByteArray::number(pixelSize));
        text.replace("%2", foreground);
        text.replace("%3", background);
        return text;
    }

private:
    void load(const QByteArray& fields)
    {
        const TemporaryFolder folder;
        const QByteArray text =
            "<styles><widget name=\"" + m_className + "\">" + fields + "</widget></styles>";
        if (!CWidgetStyle::initialize(folder.write(QLatin1String("style.xml"), text)))
            qFatal("the style file of the test is not read");
    }

    QByteArray m_className;

    Q_DISABLE_COPY(StyleFile)
};

} // namespace testing

#endif
