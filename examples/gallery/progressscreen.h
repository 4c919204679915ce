#ifndef GALLERY_PROGRESSSCREEN_H
#define GALLERY_PROGRESSSCREEN_H

#include "gallerywidgets.h"

#include <CClockProgress>
#include <CProgressBar>
#include <QList>

class Panel;
class QTimer;

/// Progress bars at every level, one that runs, and clocks.
class ProgressScreen : public Screen
{
    Q_OBJECT

public:
    explicit ProgressScreen(Panel* panel);

    void prepareShot() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private Q_SLOTS:
    void step();
    void startOrStop();

private:
    void addLevels(int y);
    void addRun(int y);
    void addClocks(int y);

    CProgressBar* m_run;
    CPushButton* m_button;
    QTimer* m_timer;
    QList<CClockProgress*> m_clocks;
    int m_value;
};

#endif
