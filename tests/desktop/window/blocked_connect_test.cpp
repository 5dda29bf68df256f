// The window, and the sockets of the system: what a connect that nobody answers does to it.

#include "desktop/bars/elided_label.h"
#include "desktop/paint_only.h"
#include "links/server_link.h"
#include "ports/qt_byte_links.h"
#include "support/black_hole.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

// The system's wires, of which a connect may take a second instead of its own limit.
class HastyByteLinks final : public FakeByteLinks {
public:
    std::function<void()> paint;
    std::chrono::seconds limit{}; // That was asked for.
    int connects = 0;

    std::unique_ptr<IByteLink> ConnectSocket(std::string_view host, std::int32_t port, std::chrono::seconds wanted,
                                             IByteSink& sink) override
    {
        limit = wanted;
        ++connects;
        return m_links.ConnectSocket(host, port, 1s, sink);
    }

private:
    QtByteLinks m_links{[this] { paint(); }};
};

// Counts what comes to a widget.
class EventCount final : public QObject {
public:
    explicit EventCount(QWidget& widget) { widget.installEventFilter(this); }
    int paints = 0, keys = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        keys += event->type() == QEvent::KeyPress;
        return false;
    }
};

// The window must neither freeze nor do anything else meanwhile, and the operator must learn what went wrong. As the
// connect never stood there is nothing to be lost: an event would begin to reconnect.
TEST(BlockedConnect, EndsAtItsLimitWhileTheWindowOnlyPaints)
{
    const BlackHole server;
    WindowProgramOver<HastyByteLinks> program;
    MainWindow& main = program.main;
    program.window.show();
    QCoreApplication::processEvents();
    SetSetting(main.Settings, Setting::Call, "W1AW-7");
    main.frmTcp.sServerAddress = "127.0.0.1";
    main.frmTcp.iServerPort = static_cast<std::int16_t>(server.Port());
    main.frmTcp.bReconnectServer = true;
    main.frmTcp.iReconnectAttempt = 3;
    const std::string address = "127.0.0.1:" + std::to_string(server.Port());

    EventCount window(program.window), panel(program.Find<ElidedLabel>("panelServer"));
    PaintOnly paintOnly(program.window);
    int rounds = 0, paintsBefore = 0, panelPaintsBefore = 0, keysWithin = -1;
    program.wires.paint = [&] {
        if (rounds++ == 0) {
            EXPECT_EQ(program.Find<ElidedLabel>("panelServer").Text(), QString::fromStdString("Connecting " + address));
            EXPECT_TRUE(main.sbStatusBar.IsWaitPointer());
            paintsBefore = window.paints;
            panelPaintsBefore = panel.paints;
            QCoreApplication::postEvent(&program.window, new QKeyEvent(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier));
        }
        paintOnly();
        keysWithin = window.keys;
    };
    WhenModal([&](QDialog& dialog) { program.Find<QPushButton>("OK", &dialog).click(); });
    program.Action("mnuConnectServer").trigger();

    EXPECT_EQ(program.wires.limit, 15s);
    EXPECT_GE(window.paints - paintsBefore, 2);
    EXPECT_GE(panel.paints - panelPaintsBefore, 1);
    EXPECT_EQ(keysWithin, 0);
    const std::string cause =
        "APRS server connection failed: cannot connect to " + address + ": the connection timed out";
    EXPECT_EQ(main.sbStatusBar.Notice(), cause);
    EXPECT_EQ(program.notices.lines.back(), cause);
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::Server), "APRS server connection failed");
    EXPECT_FALSE(main.sbStatusBar.IsWaitPointer());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.keys == 1; })); // What was shut out comes now.
    EXPECT_EQ(program.wires.connects, 1);
    EXPECT_EQ(main.links.ReconnectCount, 0);
    EXPECT_FALSE(main.links.bServerConnected || main.links.aprstcp);
}

} // namespace
} // namespace ruvenmark
