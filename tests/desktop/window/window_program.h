#pragma once

#include "core/main_window.h"
#include "desktop/adapters/qt_dialogs.h"
#include "desktop/adapters/qt_yield.h"
#include "desktop/icons/icon_set.h"
#include "desktop/main_window_view.h"
#include "intake/station_store.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "platform/settings_store.h"
#include "support/test_machine.h"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace ruvenmark {

// The whole program in its window, with the machine and the boxes of the test's making.
template <class Wires>
struct WindowProgramOver : TestMachine<MemorySettingsStore, QtYield, Wires> {
    IconSet icons;
    QtDialogs dialogs{icons};
    MainWindow main{this->Lend(dialogs)};
    MainWindowView window{main, icons, nullptr};

    explicit WindowProgramOver(bool bStart = true)
    {
        dialogs.SetWindow(&window);
        if (bStart)
            Start();
    }
    void Start()
    {
        StartMainWindow(main);
        window.resize(900, 700);
    }

    void Hear(Channel channel, std::string_view call, double lat, double lon)
    {
        if (channel == Channel::FL && !main.tvStationList.Find("FL"))
            AddChannelTree(main.tvStationList, Channel::FL);
        main.links.sinks[static_cast<std::size_t>(channel)]->ReportPos({call, "APRS", "WIDE1-1", lat, lon, "Car", ""});
    }
    QAction& Action(const char* name)
    {
        auto* action = window.findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_NE(action, nullptr) << name;
        return *action;
    }
    template <typename Widget>
    Widget& Find(const char* name, QWidget* in = nullptr)
    {
        auto* widget = (in ? in : &window)->template findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    QPushButton& Button(QDialog& in, const char* name) { return Find<QPushButton>(name, &in); }
    QLineEdit& Edit(QDialog& in, const char* name) { return Find<QLineEdit>(name, &in); }
    QComboBox& List(QDialog& in, const char* name) { return Find<QComboBox>(name, &in); }
    QCheckBox& Box(QDialog& in, const char* name) { return Find<QCheckBox>(name, &in); }
};

inline void Type(QLineEdit& edit, const char* text)
{
    edit.selectAll();
    edit.del();
    QTest::keyClicks(&edit, QString::fromLatin1(text));
}

using WindowProgram = WindowProgramOver<FakeByteLinks>;

struct WindowTest : testing::Test, WindowProgram {};

// Once a modal window has come up, does the work with it. The work must close it.
inline void WhenModal(const std::function<void(QDialog&)>& work)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, work] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        timer->stop();
        work(*dialog);
        EXPECT_FALSE(dialog->isVisible());
        dialog->close();
    });
    timer->start(1);
}

} // namespace ruvenmark
