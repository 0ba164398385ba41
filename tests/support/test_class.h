#pragma once

#include <QTest>

/// The function with which the test program of a module runs a test class; see nvx_tests in
/// cmake/NvxTargets.cmake. It does what Qt's QTEST_MAIN does in main.
#define NVX_TEST_FUNCTION(TestClass, makeApplication)                                                        \
    int run_##TestClass(int argc, char *argv[]);                                                             \
    int run_##TestClass(int argc, char *argv[])                                                              \
    {                                                                                                        \
        QTest::Internal::callInitMain<TestClass>();                                                          \
        makeApplication;                                                                                     \
        TestClass test;                                                                                      \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

/// A test class whose application shows windows if the program links Qt Widgets or Gui.
#define NVX_TEST(TestClass) NVX_TEST_FUNCTION(TestClass, QTEST_MAIN_SETUP())

/// A test class without windows.
#define NVX_GUILESS_TEST(TestClass) NVX_TEST_FUNCTION(TestClass, QTEST_QAPP_SETUP(QCoreApplication))
