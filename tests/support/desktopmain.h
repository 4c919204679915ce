#ifndef CWIDGET_TESTS_SUPPORT_DESKTOPMAIN_H
#define CWIDGET_TESTS_SUPPORT_DESKTOPMAIN_H

#include "support/xserver.h"

#include <QApplication>

#include <cstdio>

/// The main function of a test on an X server of its own.
#define CWIDGET_DESKTOP_TEST_MAIN(Test)                                                            \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        const testing::XServer server;                                                             \
        if (!server.error().isEmpty()) {                                                           \
            fprintf(stderr, "FAIL!  : %s\n", qPrintable(server.error()));                          \
            return 1;                                                                              \
        }                                                                                          \
        QApplication application(argc, argv);                                                      \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif
