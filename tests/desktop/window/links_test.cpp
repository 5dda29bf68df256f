#include "desktop/bars/elided_label.h"
#include "links/server_link.h"
#include "links/server_status_rules.h"
#include "links/tnc_link.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

class LinksWindow : public WindowTest {
protected:
    LinksWindow() { SetSetting(main.Settings, Setting::Call, "W1AW-7"); }

    void TypeInto(QDialog& dialog, const char* list, const char* text) { Type(*List(dialog, list).lineEdit(), text); }
};

// Each control holds its own field: two that were mixed up would connect elsewhere than what stands there.
TEST_F(LinksWindow, TheServersDialogGivesEachOfItsFields)
{
    main.frmTcp.sServerAddress = "former";
    main.frmTcp.iServerPort = 1;
    main.frmTcp.bServerBeacon = main.frmTcp.bAddTCPSymbol = true;
    main.frmTcp.bBackupBeacon = main.frmTcp.bAutoTCP = false;
    main.serverLists.ServerFilterList.Set("filter m/50", "filter m/50");
    WhenModal([&](QDialog& dialog) {
        EXPECT_EQ(List(dialog, "cboServer").currentText(), QStringLiteral("former"));
        EXPECT_EQ(List(dialog, "cboPort").currentText(), QStringLiteral("1"));
        EXPECT_EQ(List(dialog, "cboBackupFilter").itemText(0), QStringLiteral("filter m/50"));
        EXPECT_FALSE(List(dialog, "cboBackupServer").isEnabled());
        TypeInto(dialog, "cboServer", "prime");
        TypeInto(dialog, "cboPort", "14580");
        TypeInto(dialog, "cboFilter", "filter r/1/2/3");
        Box(dialog, "chkReconnect").click();
        EXPECT_TRUE(List(dialog, "cboBackupServer").isEnabled());
        Type(Edit(dialog, "txtNumber"), "3");
        TypeInto(dialog, "cboBackupServer", "spare");
        TypeInto(dialog, "cboBackupPort", "10152");
        TypeInto(dialog, "cboBackupFilter", "filter t/m");
        for (const char* box : {"chkServerBeacon", "chkBackupBeacon", "chkAdd", "chkAuto"})
            Box(dialog, box).click();
        Button(dialog, "OK").click();
    });
    Action("mnuConnectServer").trigger();
    const ServerForm& form = main.frmTcp;
    EXPECT_EQ(wires.opened, "connect prime 14580 15");
    EXPECT_EQ(form.sServerFilter, "filter r/1/2/3");
    EXPECT_EQ(form.sBackupServer + '|' + form.sBackupFilter, "spare|filter t/m");
    EXPECT_EQ(form.iBackupPort, 10152);
    EXPECT_EQ(form.iReconnectAttempt, 3);
    EXPECT_TRUE(form.bReconnectServer && form.bBackupBeacon && form.bAutoTCP);
    EXPECT_FALSE(form.bServerBeacon || form.bAddTCPSymbol);
}

TEST_F(LinksWindow, TheTncsDialogShowsWhatItsLinkNeeds)
{
    WhenModal([&](QDialog& dialog) {
        const auto& port = List(dialog, "cboSerialPort");
        const auto& address = Edit(dialog, "txtSocketAddress");
        auto& gps = Box(dialog, "chkTncGps");
        const auto& rate = List(dialog, "cboUpdateRate");
        EXPECT_TRUE(port.isVisible() && !address.isVisible() && gps.isEnabled() && !rate.isEnabled());
        gps.click();
        EXPECT_TRUE(rate.isEnabled());
        auto& link = List(dialog, "cboConnect");
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Down);
        EXPECT_TRUE(!port.isVisible() && address.isVisible() && !gps.isEnabled() && !rate.isEnabled());
        Type(Edit(dialog, "txtSocketPort"), "8001");
        Box(dialog, "chkAuto").click();
        Button(dialog, "OK").click();
    });
    Action("mnuConnect").trigger();
    EXPECT_EQ(wires.opened, "socket 127.0.0.1 8001");
    EXPECT_TRUE(main.commDialog.bAutoConnect);
    EXPECT_FALSE(main.commDialog.bAutoSerialPort);

    WhenModal([&](QDialog& dialog) {
        auto& link = List(dialog, "cboConnect");
        EXPECT_EQ(link.currentIndex(), 1);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Up);
        TypeInto(dialog, "cboSerialPort", "/dev/tnc");
        TypeInto(dialog, "cboSerialBaud", "9600");
        Button(dialog, "OK").click();
    });
    Action("mnuConnect").trigger();
    EXPECT_EQ(wires.opened, "serial /dev/tnc 9600 xon");
}

// Each entry below the button says what it would do now to its own link, and does as that of the menu bar.
TEST_F(LinksWindow, TheConnectButtonOpensItsMenu)
{
    QAction& connect = Action("tbConnect");
    auto* button = qobject_cast<QToolButton*>(Find<QToolBar>("tbToolBar").widgetForAction(&connect));
    ASSERT_TRUE(button && connect.menu());
    EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
    const auto texts = [&](bool bServer, bool bOther) {
        main.links.bServerConnected = main.links.bGpsConnected = bServer;
        main.links.bSocketConnected = main.links.bWxConnected = bOther;
        emit connect.menu()->aboutToShow();
        QStringList shown;
        for (const QAction* entry : connect.menu()->actions())
            shown << entry->text();
        return shown.join(QLatin1Char('|')).toStdString();
    };
    EXPECT_EQ(texts(true, false), "Connect TNC...|Disconnect APRS Server|Disconnect GPS|Connect Wx Station...");
    EXPECT_EQ(texts(false, true), "Disconnect TNC|Connect APRS Server...|Connect GPS...|Disconnect Wx Station");
    texts(false, false);
    EXPECT_FALSE(connect.icon().isNull() || Action("mnuTbConnectServer").icon().isNull());
    WhenModal([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Connect Wx Station"));
        dialog.close();
    });
    Action("mnuTbConnectWx").trigger();
}

TEST_F(LinksWindow, ThePanelWarnsAndItsTipGrowsOlderWhileItIsSeen)
{
    auto& panel = Find<ElidedLabel>("panelServer");
    ConnectServerLink(main);
    wires.Tick(2s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.accessibleDescription().startsWith("Connected for 2 seconds"); }));
    const QImage calm = panel.grab().toImage();
    wires.Tick(60s);
    CheckServerSilence(main);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.toolTip().contains("silent for 1 minute"); }));
    EXPECT_NE(panel.grab().toImage(), calm);
    EXPECT_TRUE(Find<ElidedLabel>("txtPacket").Text().contains("said nothing for a minute"));
}

// The window only paints meanwhile, so the wish to close comes to it afterwards; or a signal's handler has it at once.
TEST(ConnectingWindow, ClosedInTheMidstOfAConnectItEndsAfterIt)
{
    for (const bool bRefuse : {true, false}) {
        WindowProgram closed;
        closed.main.frmTcp.sServerAddress = "prime";
        closed.main.frmTcp.iServerPort = 14580;
        closed.wires.bRefuse = bRefuse;
        bool bShown = false;
        closed.wires.whileConnecting = [&] {
            closed.window.close();
            bShown = closed.window.isVisible();
        };
        WhenModal([&](QDialog& dialog) { closed.Button(dialog, "OK").click(); });
        closed.Action("mnuConnectServer").trigger();
        EXPECT_TRUE(bShown); // The connect is on the stack below it.
        EXPECT_FALSE(closed.window.isVisible());
        EXPECT_FALSE(closed.wires.IsKept() || closed.main.links.bServerConnected);
        // A window that closed has ended the program's loop, also the next one.
        QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
        QApplication::exec();
    }
}

} // namespace
} // namespace ruvenmark
