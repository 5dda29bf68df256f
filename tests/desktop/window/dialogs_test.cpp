// That the dialogs' controls are bound to their fields and the buttons to the rules, which have tests of their own.

#include "desktop/dialogs/binder.h"
#include "desktop/map/widget/map_widget.h"
#include "links/gps_link.h"
#include "links/gps_panel.h"
#include "links/import_form_rules.h"
#include "map/find.h"
#include "map/tile_form_rules.h"
#include "options/options_rules.h"
#include "outgoing/object_report.h"
#include "tracking/filter_form_rules.h"
#include "tracking/track_list_form_rules.h"
#include "tracking/track_lists.h"
#include "window_program.h"

#include <algorithm>

namespace ruvenmark {
namespace {

class DialogsTest : public WindowTest {
protected:
    QDialog& Modeless(const char* title)
    {
        for (auto* dialog : window.findChildren<QDialog*>())
            if (dialog->isVisible() && dialog->windowTitle() == QLatin1String(title))
                return *dialog;
        throw std::logic_error("no such dialog");
    }
    void ClickMap() { QTest::mouseClick(&window.Map(), Qt::LeftButton, {}, window.Map().rect().center()); }
};

// What one can reach with the keyboard says what it is.
void ExpectAccessible(const QDialog& dialog)
{
    int count = 0;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const bool bPart = widget->objectName().startsWith(QLatin1String("qt_")) || widget->inherits("QTabBar");
        if (bPart || widget->focusProxy() || !widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && !(button && !button->text().isEmpty()))
            << dialog.windowTitle().toStdString() << ": " << widget->metaObject()->className();
        ++count;
    }
    EXPECT_GT(count, 0) << dialog.windowTitle().toStdString();
}

// Where the tab key jumps to and fro, or begins at Cancel, one cannot work without a mouse.
void ExpectKeysGoOnAsOneReads(const QDialog& dialog)
{
    const std::string title = dialog.windowTitle().toStdString();
    const QWidget* first = dialog.focusWidget();
    ASSERT_NE(first, nullptr) << title;
    EXPECT_EQ(qobject_cast<const QPushButton*>(first), nullptr) << title;
    int lowest = 0;
    for (const QWidget* part = first; (part = part->nextInFocusChain()) != first;) {
        if (part == &dialog || qobject_cast<const QTabBar*>(part))
            break; // From the top again.
        if (!part->isVisible() || !part->isEnabled() || !(part->focusPolicy() & Qt::TabFocus) || part->focusProxy())
            continue;
        const int top = part->mapTo(&dialog, QPoint(0, part->height() / 2)).y();
        constexpr int kSameLine = 12;
        EXPECT_GT(top, lowest - kSameLine) << title << ": " << part->objectName().toStdString();
        lowest = std::max(lowest, top);
    }
}

TEST_F(DialogsTest, WorkWithTheKeysAlone)
{
    for (const Form form :
         {Form::frmFilter, Form::frmPosition, Form::frmWeather, Form::frmStatus, Form::frmObject, Form::frmMessage,
          Form::commDialog, Form::frmTcp, Form::frmGps, Form::frmTrackList, Form::frmOptions, Form::frmTiles,
          Form::frmImport, Form::frmRegion, Form::frmAbout, Form::frmFind, Form::frmWx, Form::frmGpsPanel}) {
        dialogs.Show(form, main);
        const auto all = window.findChildren<QDialog*>();
        const auto shown = std::find_if(all.begin(), all.end(), [](const QDialog* one) { return one->isVisible(); });
        ASSERT_NE(shown, all.end());
        ExpectAccessible(**shown);
        if (form != Form::frmRegion && form != Form::frmAbout && form != Form::frmGpsPanel) // These have only buttons.
            ExpectKeysGoOnAsOneReads(**shown);
        (*shown)->close();
    }
}

TEST_F(DialogsTest, ImportRefusesWhatIsNoDelayButNotOnTheWayToCancel)
{
    ImportForm& form = main.frmImport;
    form.iFLDelay = -1;
    form.bFLShow = false;
    WhenModal([&](QDialog& dialog) {
        QLineEdit& delay = Edit(dialog, "txtDelay");
        EXPECT_EQ(delay.text(), QStringLiteral("0"));
        EXPECT_FALSE(Box(dialog, "chkShow").isChecked());
        delay.setFocus();
        Type(delay, "-5");
        Button(dialog, "Cancel").setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        EXPECT_TRUE(prompts.messages.empty());
        delay.setFocus();
        Box(dialog, "chkAdd").setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(QTest::qWaitFor([&] { return delay.hasFocus(); }));
        EXPECT_EQ(prompts.messages.size(), 1U);
        for (const char* wrong : {"-5", "soon", "99999"}) {
            Type(delay, wrong);
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
        }
        Type(delay, "25");
        Box(dialog, "chkAdd").click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    frmImport_Load(form);
    dialogs.Run(Form::frmImport, main);
    EXPECT_EQ(prompts.messages, (std::vector<std::string>(4, "Enter a non negative number for delay!")));
    EXPECT_EQ(form.iFLDelay, 25);
    EXPECT_FALSE(form.bFLAdd || form.bFLShow);
}

TEST_F(DialogsTest, RegionIsThatOfTheCountryAndOneWithoutAChoice)
{
    WhenModal([&](QDialog& dialog) { Button(dialog, "Germany").click(); });
    dialogs.Run(Form::frmRegion, main);
    EXPECT_EQ(main.frmRegion.selectedRegion, kRegionEurope);
    main.frmRegion = {};
    WhenModal([&](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    dialogs.Run(Form::frmRegion, main);
    EXPECT_EQ(main.frmRegion.selectedRegion, kRegionNorthAmerica);
}

TEST_F(DialogsTest, TrackListTakesTheListsOver)
{
    SetTrackList(main.Of(Channel::RF), "N0CALL-9");
    prompts.files = {"/sounds/ping.wav"};
    WhenModal([&](QDialog& dialog) {
        EXPECT_EQ(Edit(dialog, "txtRfTrackList").text(), QStringLiteral("N0CALL-9"));
        EXPECT_EQ(List(dialog, "cboTLSize").currentText(), QStringLiteral("2 Points"));
        Type(Edit(dialog, "txtTcpTrackList"), "dl1abc  dl2xyz");
        QTest::keyClick(&List(dialog, "cboTLStyle"), Qt::Key_End);
        Button(dialog, "cmdBrowse").click();
        Button(dialog, "OK").click();
    });
    mnuTrackedStations_Click(main);
    EXPECT_EQ(TrackListText(main.Of(Channel::TCP)), "DL1ABC DL2XYZ");
    EXPECT_EQ(SettingText(main.Settings, Setting::TrackLineStyle), "3");
    EXPECT_EQ(SettingText(main.Settings, Setting::TrackWaveFile), "/sounds/ping.wav");
}

TEST_F(DialogsTest, FilterIsSavedOnlyBySaveAndNotOutOfBounds)
{
    const ReportFilter& kept = main.Of(Channel::RF).Filter;
    const auto open = [&]() -> QDialog& {
        mnuToolsFilter_Click(main);
        QDialog& dialog = Modeless("Filter Settings");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(Edit(dialog, "txtRfName").text(), QString());
        Type(Edit(dialog, "txtRfName"), "n0*");
        Box(dialog, "chkRfFilter").click();
        return dialog;
    };
    QTest::keyClick(&open(), Qt::Key_Escape);
    EXPECT_EQ(kept.Call, "");
    QDialog& dialog = open();
    QLineEdit& lat = Edit(dialog, "txtRfLat");
    lat.setFocus();
    Type(lat, "91");
    Edit(dialog, "txtRfLon").setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lat.text().isEmpty(); }));
    Type(Edit(dialog, "txtTcpRange"), "-1");
    Button(dialog, "OK").click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(prompts.messages.size(), 2U);
    EXPECT_EQ(Find<QTabWidget>("SSTab1", &dialog).currentIndex(), 1); // Where the wrong field is.
    Type(Edit(dialog, "txtTcpRange"), "30");
    Button(dialog, "OK").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(kept.Call, "N0*");
    EXPECT_TRUE(kept.bOn);
}

TEST_F(DialogsTest, FilterStandsAsideForAClickOnTheMapAndComesBack)
{
    ShowFilterOf(main, Channel::TCP);
    QDialog& dialog = Modeless("Filter Settings");
    Type(Edit(dialog, "txtTcpName"), "n0call");
    Button(dialog, "PinPoint").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialogs.IsVisible(Form::frmFilter));
    EXPECT_EQ(main.mpCtrl.MousePointer(), kPointerCross);
    main.mpCtrl.RequireMap().SetView({40, -90}, 8);
    ClickMap();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_NEAR(Edit(dialog, "txtTcpLat").text().toDouble(), 40, 0.01);
    EXPECT_NEAR(Edit(dialog, "txtTcpLon").text().toDouble(), -90, 0.01);
    EXPECT_EQ(Edit(dialog, "txtTcpName").text(), QStringLiteral("n0call"));

    // A pinpoint that is given up brings the dialog back as it was.
    Button(dialog, "PinPoint").click();
    Action("pointer").trigger();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(main.mpCtrl.MousePointer(), kPointerDefault);
}

// The program's window must not go with it, and what was typed is there when it comes back.
TEST_F(DialogsTest, SendObjectGoesAloneWhenMinimizedAndTellsWhatItLacks)
{
    mnuSendObject_Click(main);
    QDialog& dialog = Modeless("Send Object");
    EXPECT_TRUE(Find<QLabel>("lblNoRoad", &dialog).isVisible());
    EXPECT_GT(Edit(dialog, "txtComment").width(), 43 * dialog.fontMetrics().averageCharWidth());
    Type(Edit(dialog, "txtName"), "tree");
    Button(dialog, "Minimize").click();
    EXPECT_FALSE(dialog.isVisible() || window.isMinimized());
    EXPECT_EQ(main.sbStatusBar.Notice(), "Send, Object... brings the window back");
    mnuSendObject_Click(main);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Edit(dialog, "txtName").text(), QStringLiteral("tree"));
}

// Every box of the table is there under its name; one of each kind shows its setting and gives it back.
TEST_F(DialogsTest, SettingsAreBoundBoxByBoxAndSaved)
{
    SetSetting(main.Settings, Setting::Call, "N0CALL");
    SetSetting(main.Settings, Setting::MobileColor, "2");
    mnuViewOptions_Click(main);
    QDialog& dialog = Modeless("Settings");
    for (const OptionBox& box : kOptionBoxes)
        EXPECT_NE(dialog.findChild<QWidget*>(QString::fromStdString(std::string(box.control))), nullptr) << box.control;
    EXPECT_EQ(Edit(dialog, "txtCall").text(), QStringLiteral("N0CALL"));
    EXPECT_EQ(List(dialog, "cboMobileColor").currentText(), QStringLiteral("Green"));
    EXPECT_TRUE(Find<QRadioButton>("optMe", &dialog).isChecked());

    auto& tabs = Find<QTabWidget>("SSTab1", &dialog);
    EXPECT_FALSE(Button(dialog, "PinPoint").isVisible());
    tabs.setCurrentIndex(static_cast<int>(OptionPage::Position));
    EXPECT_TRUE(Button(dialog, "PinPoint").isVisible());
    Type(Edit(dialog, "txtCall"), "");
    Button(dialog, "OK").click();
    EXPECT_EQ(tabs.currentIndex(), static_cast<int>(OptionPage::General));
    EXPECT_TRUE(dialog.isVisible());
    Type(Edit(dialog, "txtCall"), "N1CALL");
    Find<QRadioButton>("optAll", &dialog).click();
    Box(dialog, "chkShowRfNames").click();
    QTest::keyClick(&List(dialog, "cboMobileColor"), Qt::Key_End);
    Button(dialog, "OK").click();
    EXPECT_FALSE(dialog.isVisible());
    for (const auto& [setting, kept] : {std::pair{Setting::Call, "N1CALL"},
                                        {Setting::All, "True"},
                                        {Setting::ShowRFNames, "0"},
                                        {Setting::MobileColor, "7"},
                                        {Setting::PositionInt, "-1"}}) // Untouched.
        EXPECT_EQ(SettingText(main.Settings, setting), kept);
}

TEST_F(DialogsTest, FindOffersWhileTypingAndGoesThereOnEnter)
{
    Hear(Channel::TCP, "SP5XYZ", 52, 21);
    mnuFind_Click(main);
    QDialog& dialog = Modeless("Find");
    auto& text = Edit(dialog, "txtFind");
    auto& list = Find<QListWidget>("lstFound", &dialog);
    QTest::keyClicks(&text, QStringLiteral("sp"));
    ASSERT_EQ(list.count(), 3);
    EXPECT_TRUE(list.item(0)->text().startsWith(QStringLiteral("SP5XYZ")));
    QTest::keyClick(&text, Qt::Key_Down);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_NEAR(main.mpCtrl.RequireMap().View().centre.lat, 39.8, 1e-6);

    mnuFind_Click(main);
    QTest::keyClicks(&text, QStringLiteral("nowhere at all"));
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text.text(), QStringLiteral("nowhere at all"));
}

// The ports of this machine are offered, and any other can be typed.
TEST_F(DialogsTest, SerialLinksTakeATypedPortAndAChosenRate)
{
    WhenModal([&](QDialog& dialog) {
        auto& port = List(dialog, "cboPort");
        EXPECT_EQ(port.itemText(0), QStringLiteral("/dev/ttyS0"));
        Button(dialog, "OK").click(); // No port is chosen yet.
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClicks(port.lineEdit(), QStringLiteral("/dev/gps"));
        QTest::keyClick(&List(dialog, "cboBaud"), Qt::Key_Down);
        Box(dialog, "chkTracking").click();
        Button(dialog, "OK").click();
    });
    mnuConnectGps_Click(main);
    EXPECT_EQ(wires.opened, "serial /dev/gps 9600");
    EXPECT_FALSE(main.frmGps.bTrackGpsPosition);
    WhenModal([&](QDialog& dialog) {
        QTest::keyClick(&List(dialog, "cboPort"), Qt::Key_Down);
        Button(dialog, "OK").click();
    });
    Action("mnuConnectWx").trigger();
    EXPECT_EQ(wires.opened, "serial /dev/ttyS0 2400");
}

// A call pasted with its line end would be deaf to its messages while the box looks right.
TEST(BinderTest, WhatIsPastedIsOneLine)
{
    QLineEdit edit;
    std::string field = "old";
    Binder binder;
    binder.Bind(edit, field);
    edit.selectAll();
    edit.insert(QStringLiteral("two\nlines\r\n"));
    EXPECT_EQ(field, "two lines");
}

// Completed by itself, a box would show a port that nobody chose while the field held what was typed.
TEST(BinderTest, AnEditableListShowsWhatItsFieldHolds)
{
    QComboBox list;
    list.setEditable(true);
    list.addItem(QStringLiteral("/dev/ttyS0"));
    std::string field;
    Binder binder;
    binder.Bind(list, field);
    list.show();
    list.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.hasFocus(); }));
    QTest::keyClicks(list.lineEdit(), QStringLiteral("/dev"));
    EXPECT_EQ(field, "/dev");
    EXPECT_EQ(list.currentText(), QStringLiteral("/dev"));
}

TEST_F(DialogsTest, GpsPanelFollowsTheFixesAndIsHiddenByItsFrame)
{
    mnuViewGPSPanel_Click(main);
    QDialog& dialog = Modeless("GPS Panel");
    main.commDialog.bTncGps = true;
    aprs_ReportGpsData(main, {.lat = 40.5, .lon = -90, .bValid = true});
    EXPECT_EQ(Find<QLabel>("lblLat", &dialog).text(), QStringLiteral("40.5"));
    Button(dialog, "Command1").click();
    EXPECT_FALSE(dialog.isVisible());
    ClickMap();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(Find<QLabel>("lblDestLat", &dialog).text().isEmpty());
    Button(dialog, "Command2").click();
    EXPECT_TRUE(Find<QLabel>("lblDestLat", &dialog).text().isEmpty());
    dialog.close();
    EXPECT_FALSE(dialogs.IsVisible(Form::frmGpsPanel));
}

TEST_F(DialogsTest, TheTileServerIsChosenTestedAndRefusedWhereItIsNone)
{
    WhenModal([&](QDialog& dialog) {
        auto& server = List(dialog, "cboServer");
        server.setCurrentIndex(1);
        emit server.activated(1);
        EXPECT_EQ(Edit(dialog, "txtUrl").text().toStdString(), kTileServers[1].url);
        Button(dialog, "btnTest").click();
        ASSERT_TRUE(desktop.takePicture);
        desktop.takePicture({200, "", 1234, 256, 256});
        EXPECT_TRUE(Find<QLabel>("lblResult", &dialog).text().contains(QLatin1String("256 x 256")));
        Type(Edit(dialog, "txtUrl"), "https://tiles.example/");
        EXPECT_EQ(server.currentIndex(), -1);
        Button(dialog, "OK").click();
        EXPECT_TRUE(dialog.isVisible());
        Type(Edit(dialog, "txtUrl"), "https://tiles.example/{z}/{x}/{y}");
        Button(dialog, "OK").click();
    });
    mnuTileServer_Click(main);
    EXPECT_EQ(main.map.tiles.urlTemplate, "https://tiles.example/{z}/{x}/{y}");
}

} // namespace
} // namespace ruvenmark
