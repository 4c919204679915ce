// restyle FILE PAUSE FAMILY...: rewrites the style file for one font family after the other, round
// and round until it is ended or, without a PAUSE in ms, once. Prints what comes of each.

#include <CWidgetStyle>
#include <QFont>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc < 4) {
        fprintf(stderr, "usage: restyle FILE PAUSE FAMILY...\n");
        return 2;
    }
    QGuiApplication application(argc, argv);
    const QString file = QString::fromLocal8Bit(argv[1]);
    const int pause = atoi(argv[2]);
    do {
        for (int i = 3; i < argc; ++i) {
            const bool done =
                CWidgetStyle::setWidgetStyle(file, QFont(QString::fromLocal8Bit(argv[i])));
            printf("%s %s\n", argv[i], done ? "written" : "not written");
            fflush(stdout);
            usleep(static_cast<useconds_t>(pause) * 1000);
        }
    } while (pause > 0);
    return 0;
}
