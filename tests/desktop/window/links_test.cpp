#include "desktop/bars/elided_label.h"
#include "links/server_link.h"
#include "links/server_status_rules.h"
#include "links/tnc_link.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

class LinksWindow : public testing::Test {
protected:
    LinksWindow() { SetSetting(main.Settings, Setting::Call, "W1AW-7"); }

    void TypeInto(QDialog& dialog, const char* list, const char* text)
    {
        Type(*program.Find<QComboBox>(list, &dialog).lineEdit(), text);
    }
    static std::string Text(const QComboBox& box) { return box.currentText().toStdString(); }

    WindowProgram program;
    MainWindow& main = program.main;
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
        EXPECT_EQ(Text(program.Find<QComboBox>("cboServer", &dialog)), "former");
        EXPECT_EQ(Text(program.Find<QComboBox>("cboPort", &dialog)), "1");
        EXPECT_EQ(program.Find<QComboBox>("cboBackupFilter", &dialog).itemText(0), QStringLiteral("filter m/50"));
        EXPECT_FALSE(program.Find<QComboBox>("cboBackupServer", &dialog).isEnabled());
        TypeInto(dialog, "cboServer", "prime");
        TypeInto(dialog, "cboPort", "14580");
        TypeInto(dialog, "cboFilter", "filter r/1/2/3");
        program.Find<QCheckBox>("chkReconnect", &dialog).click();
        EXPECT_TRUE(program.Find<QComboBox>("cboBackupServer", &dialog).isEnabled());
        Type(program.Find<QLineEdit>("txtNumber", &dialog), "3");
        TypeInto(dialog, "cboBackupServer", "spare");
        TypeInto(dialog, "cboBackupPort", "10152");
        TypeInto(dialog, "cboBackupFilter", "filter t/m");
        for (const char* box : {"chkServerBeacon", "chkBackupBeacon", "chkAdd", "chkAuto"})
            program.Find<QCheckBox>(box, &dialog).click();
        program.Find<QPushButton>("OK", &dialog).click();
    });
    program.Action("mnuConnectServer").trigger();
    const ServerForm& form = main.frmTcp;
    EXPECT_EQ(program.wires.opened, "connect prime 14580 15");
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
        const auto& port = program.Find<QComboBox>("cboSerialPort", &dialog);
        const auto& address = program.Find<QLineEdit>("txtSocketAddress", &dialog);
        auto& gps = program.Find<QCheckBox>("chkTncGps", &dialog);
        const auto& rate = program.Find<QComboBox>("cboUpdateRate", &dialog);
        EXPECT_TRUE(port.isVisible() && !address.isVisible() && gps.isEnabled() && !rate.isEnabled());
        gps.click();
        EXPECT_TRUE(rate.isEnabled());
        auto& link = program.Find<QComboBox>("cboConnect", &dialog);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Down);
        EXPECT_TRUE(!port.isVisible() && address.isVisible() && !gps.isEnabled() && !rate.isEnabled());
        EXPECT_EQ(address.text(), QStringLiteral("127.0.0.1"));
        Type(program.Find<QLineEdit>("txtSocketPort", &dialog), "8001");
        program.Find<QCheckBox>("chkAuto", &dialog).click();
        program.Find<QPushButton>("OK", &dialog).click();
    });
    program.Action("mnuConnect").trigger();
    EXPECT_EQ(program.wires.opened, "socket 127.0.0.1 8001");
    EXPECT_TRUE(main.commDialog.bAutoConnect);
    EXPECT_FALSE(main.commDialog.bAutoSerialPort);

    WhenModal([&](QDialog& dialog) {
        auto& link = program.Find<QComboBox>("cboConnect", &dialog);
        EXPECT_EQ(link.currentIndex(), 1);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Up);
        TypeInto(dialog, "cboSerialPort", "/dev/tnc");
        TypeInto(dialog, "cboSerialBaud", "9600");
        program.Find<QPushButton>("OK", &dialog).click();
    });
    program.Action("mnuConnect").trigger();
    EXPECT_EQ(program.wires.opened, "serial /dev/tnc 9600 xon");
}

// Each entry below the button says what it would do now to its own link, and does as that of the menu bar.
TEST_F(LinksWindow, TheConnectButtonOpensItsMenu)
{
    QAction& connect = program.Action("tbConnect");
    auto* button = qobject_cast<QToolButton*>(program.Find<QToolBar>("tbToolBar").widgetForAction(&connect));
    ASSERT_TRUE(button && connect.menu());
    EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
    const auto texts = [&] {
        emit connect.menu()->aboutToShow();
        QStringList shown;
        for (const QAction* entry : connect.menu()->actions())
            shown << entry->text();
        return shown.join(QLatin1Char('|')).toStdString();
    };
    ConnectServerLink(main);
    main.links.bGpsConnected = true;
    EXPECT_EQ(texts(), "Connect TNC...|Disconnect APRS Server|Disconnect GPS|Connect Wx Station...");
    main.links.bGpsConnected = false;
    QAction& server = program.Action("mnuTbConnectServer");
    EXPECT_FALSE(connect.icon().isNull() || server.icon().isNull());
    server.trigger();
    EXPECT_FALSE(main.links.bServerConnected);
    main.links.bSocketConnected = main.links.bWxConnected = true;
    EXPECT_EQ(texts(), "Disconnect TNC|Connect APRS Server...|Connect GPS...|Disconnect Wx Station");
    main.links.bSocketConnected = main.links.bWxConnected = false;
    WhenModal([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Connect Wx Station"));
        dialog.close();
    });
    program.Action("mnuTbConnectWx").trigger();
}

TEST_F(LinksWindow, ThePanelWarnsAndItsTipGrowsOlderWhileItIsSeen)
{
    auto& panel = program.Find<ElidedLabel>("panelServer");
    ConnectServerLink(main);
    program.wires.Tick(2s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.accessibleDescription().startsWith("Connected for 2 seconds"); }));
    const QImage calm = panel.grab().toImage();
    program.wires.Tick(60s);
    CheckServerSilence(main);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.toolTip().contains("silent for 1 minute"); }));
    EXPECT_NE(panel.grab().toImage(), calm);
    EXPECT_TRUE(program.Find<ElidedLabel>("txtPacket").Text().contains("said nothing for a minute"));
}

// A window that closed has ended the program's loop, also the next one.
void AllowLoops()
{
    QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
    QApplication::exec();
}

// The window only paints meanwhile, so the wish to close comes to it afterwards; or a signal's handler has it at once.
TEST_F(LinksWindow, ClosedInTheMidstOfAConnectItEndsAfterIt)
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
        WhenModal([&](QDialog& dialog) { closed.Find<QPushButton>("OK", &dialog).click(); });
        closed.Action("mnuConnectServer").trigger();
        EXPECT_TRUE(bShown); // The connect is on the stack below it.
        EXPECT_FALSE(closed.window.isVisible());
        EXPECT_FALSE(closed.wires.IsKept());
        EXPECT_FALSE(closed.main.links.bServerConnected);
        AllowLoops();
    }
}

} // namespace
} // namespace ruvenmark
