// A panel drawn with Qt Designer: designedpanel.ui holds the widgets with their texts, ranges and
// colours, and this file what they do. The pump builds up pressure until it reaches the set point.
//
// usage: designed-panel [STYLE-FILE]

#include "stylefile.h"
#include "ui_designedpanel.h"

#include <CWidgetStyle>
#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace
{

const int stepInterval = 400; // ms for one bar

} // namespace

class DesignedPanel : public CWidget
{
    Q_OBJECT

public:
    DesignedPanel();

private Q_SLOTS:
    void on_start_clicked();
    void on_stop_clicked();
    void step();

private:
    void showPressure(int bar);

    Ui::DesignedPanel m_ui;
    QTimer m_timer;
};

DesignedPanel::DesignedPanel()
{
    m_ui.setupUi(this); // also connects the buttons with the slots that bear their names
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(step()));
    showPressure(0);
}

void DesignedPanel::on_start_clicked()
{
    m_timer.start(stepInterval);
}

void DesignedPanel::on_stop_clicked()
{
    m_timer.stop();
    showPressure(0);
}

void DesignedPanel::step()
{
    const int setPoint = m_ui.setPoint->text().toInt();
    showPressure(qMin(m_ui.level->value() + 1, setPoint));
}

void DesignedPanel::showPressure(int bar)
{
    m_ui.level->setValue(bar);
    m_ui.pressure->setText(QString::fromLatin1("%1 bar").arg(bar));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QString style = QApplication::arguments().value(1, shippedStyleFile());
    if (!CWidgetStyle::initialize(style)) // before any widget is made
        fprintf(stderr, "The style file %s cannot be read.\n", qPrintable(style));
    DesignedPanel panel;
    panel.show();
    return QApplication::exec();
}

#include "main.moc"
