// A style file with anything in it: it is read or refused, never half of it, and it never takes the
// process down; what was read can be put on widgets and painted.

#include "fuzzing.h"

#include "style/widgetstyle.h"
#include "widgets/label.h"
#include "widgets/pushbutton.h"

#include <QFile>
#include <QTemporaryDir>

namespace
{

const char good[] = "<root><widget type=\"1\" name=\"Known\"><FieldAll><font size=\"10\"/>"
                    "</FieldAll></widget></root>";

const char* const names[] = {"CWidget", "CLabel", "CPushButton", "CComboBox", "Known", "a", ""};

QString path()
{
    static const QTemporaryDir folder;
    static const QString file = folder.filePath(QString::fromLatin1("style.xml"));
    return file;
}

void write(const QByteArray& content)
{
    QFile file(path());
    fuzzing::require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "the file can be made");
    file.write(content);
}

QByteArray content()
{
    QFile file(path());
    fuzzing::require(file.open(QIODevice::ReadOnly), "the file is there");
    return file.readAll();
}

template <typename Widget>
void paint(const WidgetStyle& style)
{
    Widget widget;
    widget.setWidgetStyle(style);
    widget.setText(QString::fromLatin1("Text 1"));
    widget.resize(80, 30);
    fuzzing::render(&widget);
}

void paintAll()
{
    for (size_t i = 0; i < sizeof names / sizeof names[0]; ++i) {
        const WidgetStyle style = CWidgetStyle::getWidgetStyle(QString::fromLatin1(names[i]));
        paint<CLabel>(style);
        paint<CPushButton>(style);
    }
}

bool isKnown()
{
    bool ok = false;
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QString::fromLatin1("Known"), &ok);
    return ok && style.type == 1 && style.styles.size() == 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    write(good);
    fuzzing::require(CWidgetStyle::initialize(path()), "a good file is read");

    write(bytes);
    const bool read = CWidgetStyle::initialize(path());
    fuzzing::require(content() == bytes, "reading leaves the file alone");
    fuzzing::require(read || isKnown(), "a refused file changes nothing");
    paintAll();

    QFont font(QString::fromLatin1("Courier"));
    font.setPixelSize(12);
    const bool rewritten = CWidgetStyle::setWidgetStyle(path(), font);
    fuzzing::require(rewritten || content() == bytes, "a file that is not rewritten stays");
    fuzzing::require(!rewritten || CWidgetStyle::initialize(path()), "a rewritten file is read");
    if (rewritten)
        paintAll();
    return 0;
}
