// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// All tests run without a screen and in their own home, so that they do not touch the files of the user.
int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
