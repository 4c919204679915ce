// A plugin for any program with Qt's widgets, loaded with -plugin widgetspy:FOLDER: says where the
// widgets are that a person sees now, so that the bench touches what the program shows and knows no
// layout by heart. A number written to FOLDER/ask is answered by a file of that name in FOLDER.

#include <CKeyButton>
#include <CLabel>
#include <CPageListWidgetItem>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QSocketNotifier>
#include <QTextEdit>
#include <QWidget>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QString textOf(QWidget* widget)
{
    if (const CPushButton* button = qobject_cast<CPushButton*>(widget))
        return button->getText();
    if (const CLabel* label = qobject_cast<CLabel*>(widget))
        return label->text();
    if (const CPageListWidgetItem* row = qobject_cast<CPageListWidgetItem*>(widget))
        return row->text();
    if (const QLineEdit* edit = qobject_cast<QLineEdit*>(widget))
        return edit->text();
    if (const QTextEdit* edit = qobject_cast<QTextEdit*>(widget))
        return edit->toPlainText();
    if (const QComboBox* combo = qobject_cast<QComboBox*>(widget))
        return combo->currentText();
    if (const QCheckBox* box = qobject_cast<QCheckBox*>(widget))
        return box->text();
    return QString();
}

/// The name by which the program knows \a widget or, where it names only what stands around it,
/// that.
QString nameOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")))
            return name;
    }
    return QString();
}

QJsonObject described(QWidget* widget)
{
    const QPoint origin = widget->mapToGlobal(QPoint());
    QJsonObject object;
    object.insert(QLatin1String("class"), QLatin1String(widget->metaObject()->className()));
    object.insert(QLatin1String("name"), widget->objectName());
    object.insert(QLatin1String("within"), nameOf(widget->parentWidget()));
    if (widget->parentWidget())
        object.insert(QLatin1String("parent"),
                      QLatin1String(widget->parentWidget()->metaObject()->className()));
    object.insert(QLatin1String("text"), textOf(widget));
    object.insert(QLatin1String("x"), origin.x());
    object.insert(QLatin1String("y"), origin.y());
    object.insert(QLatin1String("width"), widget->width());
    object.insert(QLatin1String("height"), widget->height());
    object.insert(QLatin1String("enabled"), widget->isEnabled());
    object.insert(QLatin1String("window"), widget->isWindow());
    if (const CKeyButton* key = qobject_cast<CKeyButton*>(widget))
        object.insert(QLatin1String("key"), key->key());
    if (const QCheckBox* box = qobject_cast<QCheckBox*>(widget))
        object.insert(QLatin1String("checked"), box->checkState() == Qt::Checked);
    return object;
}

QByteArray visibleWidgets()
{
    QJsonArray list;
    const QWidgetList widgets = QApplication::allWidgets();
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i)->isVisible())
            list.append(described(widgets.at(i)));
    }
    return QJsonDocument(list).toJson(QJsonDocument::Compact);
}

} // namespace

class WidgetSpy : public QObject
{
    Q_OBJECT

public:
    explicit WidgetSpy(const QString& folder) : m_folder(folder), m_ask(makePipe("ask"))
    {
        QSocketNotifier* const notifier = new QSocketNotifier(m_ask, QSocketNotifier::Read, this);
        connect(notifier, SIGNAL(activated(int)), SLOT(tell()));
    }

    ~WidgetSpy()
    {
        ::close(m_ask);
    }

private Q_SLOTS:
    void tell()
    {
        char line[64];
        const ssize_t length = ::read(m_ask, line, sizeof line);
        if (length <= 0)
            return;
        const QString number = QString::fromLatin1(line, static_cast<int>(length)).trimmed();
        QFile file(m_folder + QLatin1String("/unfinished"));
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(visibleWidgets());
        file.close();
        file.rename(m_folder + QLatin1Char('/') + number);
    }

private:
    int makePipe(const char* name) const
    {
        const QByteArray path = QFile::encodeName(m_folder) + '/' + name;
        ::unlink(path.constData()); // what another program was asked does not count
        ::mkfifo(path.constData(), 0666);
        return ::open(path.constData(), O_RDWR | O_CLOEXEC);
    }

    QString m_folder;
    int m_ask;
};

class WidgetSpyPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "widgetspy.json")

public:
    QObject* create(const QString& name, const QString& folder) override
    {
        Q_UNUSED(name);
        return new WidgetSpy(folder);
    }
};

#include "widgetspy.moc"
