#include "desktop/dialogs/binder.h"
#include "desktop/map/widget/map_widget.h"
#include "links/gps_link.h"
#include "links/gps_panel.h"
#include "links/import_form_rules.h"
#include "links/station_files.h"
#include "links/weather_link.h"
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

class DialogsTest : public testing::Test {
protected:
    QPushButton& Button(QDialog& dialog, const char* name) { return program.Find<QPushButton>(name, &dialog); }
    QLineEdit& Edit(QDialog& dialog, const char* name) { return program.Find<QLineEdit>(name, &dialog); }
    QDialog& Modeless(const char* title)
    {
        for (auto* dialog : program.window.findChildren<QDialog*>())
            if (dialog->isVisible() && dialog->windowTitle() == QLatin1String(title))
                return *dialog;
        throw std::logic_error("no such dialog");
    }
    QDialog& Filter()
    {
        mnuToolsFilter_Click(program.main);
        QDialog& dialog = Modeless("Filter Settings");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        return dialog;
    }

    WindowProgram program;
};

// What one can reach with the keyboard says what it is.
void ExpectAccessible(const QDialog& dialog)
{
    int count = 0;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const bool bPart = widget->objectName().startsWith(QLatin1String("qt_")) || widget->inherits("QTabBar");
        if (bPart || !widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && !(button && !button->text().isEmpty()))
            << dialog.windowTitle().toStdString() << ": " << widget->metaObject()->className();
        ++count;
    }
    EXPECT_GT(count, 0) << dialog.windowTitle().toStdString();
}

TEST_F(DialogsTest, ImportRefusesWhatIsNoDelayButNotOnTheWayToCancel)
{
    ImportForm& form = program.main.frmImport;
    form.iFLDelay = -1;
    form.bFLShow = false;
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        QLineEdit& delay = Edit(dialog, "txtDelay");
        auto& add = program.Find<QCheckBox>("chkAdd", &dialog);
        EXPECT_EQ(delay.text(), QStringLiteral("0"));
        EXPECT_FALSE(program.Find<QCheckBox>("chkShow", &dialog).isChecked());
        delay.setFocus();
        Type(delay, "-5");
        Button(dialog, "Cancel").setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        EXPECT_TRUE(program.prompts.messages.empty());
        delay.setFocus();
        add.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(QTest::qWaitFor([&] { return delay.hasFocus(); }));
        EXPECT_EQ(program.prompts.messages.size(), 1U);
        for (const char* wrong : {"-5", "soon", "99999"}) {
            Type(delay, wrong);
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(delay.text(), QLatin1String(wrong));
        }
        Type(delay, "25");
        add.click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    frmImport_Load(form);
    program.dialogs.Run(Form::frmImport, program.main);
    EXPECT_EQ(program.prompts.messages, (std::vector<std::string>(4, "Enter a non negative number for delay!")));
    EXPECT_EQ(form.iFLDelay, 25);
    EXPECT_FALSE(form.bFLAdd || form.bFLShow);
}

TEST_F(DialogsTest, RegionIsThatOfTheCountryAndOneWithoutAChoice)
{
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        Button(dialog, "Germany").click();
    });
    program.dialogs.Run(Form::frmRegion, program.main);
    EXPECT_EQ(program.main.frmRegion.selectedRegion, kRegionEurope);
    program.main.frmRegion = {};
    WhenModal([&](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    program.dialogs.Run(Form::frmRegion, program.main);
    EXPECT_EQ(program.main.frmRegion.selectedRegion, kRegionNorthAmerica);
}

TEST_F(DialogsTest, TrackListTakesTheListsOver)
{
    SetTrackList(program.main.Of(Channel::RF), "N0CALL-9");
    program.prompts.files = {"/sounds/ping.wav"};
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        EXPECT_EQ(Edit(dialog, "txtRfTrackList").text(), QStringLiteral("N0CALL-9"));
        EXPECT_EQ(program.Find<QComboBox>("cboTLSize", &dialog).currentText(), QStringLiteral("2 Points"));
        Type(Edit(dialog, "txtTcpTrackList"), "dl1abc  dl2xyz");
        auto& style = program.Find<QComboBox>("cboTLStyle", &dialog);
        style.setFocus();
        QTest::keyClick(&style, Qt::Key_End);
        Button(dialog, "cmdBrowse").click();
        EXPECT_EQ(Edit(dialog, "txtTrackWaveFile").text(), QStringLiteral("/sounds/ping.wav"));
        Button(dialog, "OK").click();
    });
    mnuTrackedStations_Click(program.main);
    EXPECT_EQ(TrackListText(program.main.Of(Channel::TCP)), "DL1ABC DL2XYZ");
    EXPECT_EQ(SettingText(program.main.Settings, Setting::TrackLineStyle), "3");
    EXPECT_EQ(SettingText(program.main.Settings, Setting::TrackWaveFile), "/sounds/ping.wav");
}

TEST_F(DialogsTest, FilterIsSavedOnlyBySaveAndNotOutOfBounds)
{
    QDialog& dialog = Filter();
    ExpectAccessible(dialog);
    const ReportFilter& kept = program.main.Of(Channel::RF).Filter;
    const auto fill = [&] {
        EXPECT_EQ(Edit(dialog, "txtRfName").text(), QString());
        Type(Edit(dialog, "txtRfName"), "n0*");
        program.Find<QCheckBox>("chkRfFilter", &dialog).click();
    };
    fill();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(kept.Call, "");
    Filter();
    fill();
    QLineEdit& lat = Edit(dialog, "txtRfLat");
    lat.setFocus();
    Type(lat, "91");
    Edit(dialog, "txtRfLon").setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lat.text().isEmpty(); }));
    Type(Edit(dialog, "txtTcpRange"), "-1");
    Button(dialog, "OK").click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(program.prompts.messages, (std::vector<std::string>{"Enter a value between -90 and 90 for latitude!",
                                                                  "Enter a positive number for range!"}));
    EXPECT_EQ(program.Find<QTabWidget>("SSTab1", &dialog).currentIndex(), 1);
    Type(Edit(dialog, "txtTcpRange"), "30");
    Button(dialog, "OK").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(kept.Call, "N0*");
    EXPECT_TRUE(kept.bOn);
}

TEST_F(DialogsTest, FilterStandsAsideForAClickOnTheMapAndComesBack)
{
    ShowFilterOf(program.main, Channel::TCP);
    QDialog& dialog = Modeless("Filter Settings");
    EXPECT_EQ(program.Find<QTabWidget>("SSTab1", &dialog).currentIndex(), 1);
    Type(Edit(dialog, "txtTcpName"), "n0call");
    Button(dialog, "PinPoint").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(program.dialogs.IsVisible(Form::frmFilter));
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), kPointerCross);
    program.main.mpCtrl.RequireMap().SetView({40, -90}, 8);
    QTest::mouseClick(&program.window.Map(), Qt::LeftButton, {}, program.window.Map().rect().center());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_NEAR(Edit(dialog, "txtTcpLat").text().toDouble(), 40, 0.01);
    EXPECT_NEAR(Edit(dialog, "txtTcpLon").text().toDouble(), -90, 0.01);
    EXPECT_EQ(Edit(dialog, "txtTcpName").text(), QStringLiteral("n0call"));
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), kPointerDefault);
    EXPECT_EQ(program.main.Of(Channel::TCP).Filter.Lat, "");

    // A pinpoint that is given up brings the dialog back as it was.
    Button(dialog, "PinPoint").click();
    program.Action("pointer").trigger();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), kPointerDefault);
}

// Where the tab key jumps to and fro, or begins at Cancel, one cannot work without a mouse.
// The program's window must not go with it, and what was typed is there when it comes back.
TEST_F(DialogsTest, SendObjectGoesAloneWhenMinimizedAndTellsWhatItLacks)
{
    mnuSendObject_Click(program.main);
    QDialog& dialog = Modeless("Send Object");
    EXPECT_TRUE(program.Find<QLabel>("lblNoRoad", &dialog).isVisible());
    EXPECT_GT(program.Find<QLineEdit>("txtComment", &dialog).width(), 43 * dialog.fontMetrics().averageCharWidth());
    Type(Edit(dialog, "txtName"), "tree");
    Button(dialog, "Minimize").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(program.window.isMinimized());
    EXPECT_EQ(program.main.sbStatusBar.Notice(), "Send, Object... brings the window back");
    mnuSendObject_Click(program.main);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(program.Find<QLineEdit>("txtName", &dialog).text(), QStringLiteral("tree"));
}

TEST_F(DialogsTest, TheKeysBeginAtAnEntryAndGoOnAsOneReads)
{
    for (const Form form :
         {Form::frmFilter, Form::frmPosition, Form::frmWeather, Form::frmStatus, Form::frmObject, Form::frmMessage,
          Form::commDialog, Form::frmTcp, Form::frmGps, Form::frmTrackList, Form::frmOptions, Form::frmTiles}) {
        program.dialogs.Show(form, program.main);
        QDialog* dialog = nullptr;
        for (auto* one : program.window.findChildren<QDialog*>())
            if (one->isVisible())
                dialog = one;
        ASSERT_NE(dialog, nullptr);
        const std::string title = dialog->windowTitle().toStdString();
        const QWidget* first = dialog->focusWidget();
        ASSERT_NE(first, nullptr) << title;
        EXPECT_EQ(qobject_cast<const QPushButton*>(first), nullptr) << title;
        int lowest = 0;
        for (const QWidget* part = first; (part = part->nextInFocusChain()) != first;) {
            const bool bStop = part->isVisible() && part->isEnabled() && (part->focusPolicy() & Qt::TabFocus) != 0 &&
                               !part->focusProxy();
            if (part == dialog || qobject_cast<const QTabBar*>(part))
                break; // From the top again.
            if (!bStop)
                continue;
            const int top = part->mapTo(dialog, QPoint(0, part->height() / 2)).y();
            constexpr int kSameLine = 12;
            EXPECT_GT(top, lowest - kSameLine) << title << ": " << part->objectName().toStdString();
            lowest = std::max(lowest, top);
        }
        dialog->close();
    }
}

// Every box of the table is there under its name, shows its setting and gives it back.
TEST_F(DialogsTest, SettingsAreBoundBoxByBoxAndSaved)
{
    SetSetting(program.main.Settings, Setting::Call, "N0CALL");
    SetSetting(program.main.Settings, Setting::MobileColor, "2");
    mnuViewOptions_Click(program.main);
    QDialog& dialog = Modeless("Settings");
    ExpectAccessible(dialog);
    for (const OptionBox& box : kOptionBoxes)
        EXPECT_NE(dialog.findChild<QWidget*>(QString::fromStdString(std::string(box.control))), nullptr) << box.control;
    EXPECT_EQ(Edit(dialog, "txtCall").text(), QStringLiteral("N0CALL"));
    EXPECT_EQ(program.Find<QComboBox>("cboMobileColor", &dialog).currentText(), QStringLiteral("Green"));
    EXPECT_EQ(program.Find<QComboBox>("cboPositionInterval", &dialog).currentText(), QStringLiteral("Manual"));
    EXPECT_TRUE(program.Find<QRadioButton>("optMe", &dialog).isChecked());

    auto& tabs = program.Find<QTabWidget>("SSTab1", &dialog);
    EXPECT_FALSE(Button(dialog, "PinPoint").isVisible());
    tabs.setCurrentIndex(static_cast<int>(OptionPage::Position));
    EXPECT_TRUE(Button(dialog, "PinPoint").isVisible());
    Type(Edit(dialog, "txtLat"), "37.5");
    Type(Edit(dialog, "txtCall"), "");
    Button(dialog, "OK").click();
    EXPECT_EQ(tabs.currentIndex(), static_cast<int>(OptionPage::General));
    EXPECT_EQ(program.prompts.messages, std::vector<std::string>{"You must enter call sign and unproto path!"});
    EXPECT_TRUE(dialog.isVisible());
    Type(Edit(dialog, "txtCall"), "N1CALL");
    program.Find<QRadioButton>("optAll", &dialog).click();
    program.Find<QCheckBox>("chkShowRfNames", &dialog).click();
    auto& color = program.Find<QComboBox>("cboMobileColor", &dialog);
    QTest::keyClick(&color, Qt::Key_End);
    Button(dialog, "OK").click();
    EXPECT_FALSE(dialog.isVisible());
    for (const auto& [setting, kept] : {std::pair{Setting::Call, "N1CALL"},
                                        {Setting::Lat, "37.5"},
                                        {Setting::All, "True"},
                                        {Setting::ShowRFNames, "0"},
                                        {Setting::MobileColor, "7"},
                                        {Setting::PositionInt, "-1"}}) // Untouched.
        EXPECT_EQ(SettingText(program.main.Settings, setting), kept);
}

TEST_F(DialogsTest, FindOffersWhileTypingAndGoesThereOnEnter)
{
    program.Hear(Channel::TCP, "SP5XYZ", 52, 21);
    mnuFind_Click(program.main);
    QDialog& dialog = Modeless("Find");
    ExpectAccessible(dialog);
    auto& text = Edit(dialog, "txtFind");
    auto& list = program.Find<QListWidget>("lstFound", &dialog);
    QTest::keyClicks(&text, QStringLiteral("sp"));
    ASSERT_EQ(list.count(), 3);
    EXPECT_TRUE(list.item(0)->text().startsWith(QStringLiteral("SP5XYZ")));
    QTest::keyClick(&text, Qt::Key_Down);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_NEAR(program.main.mpCtrl.RequireMap().View().centre.lat, 39.8, 1e-6);

    mnuFind_Click(program.main);
    QTest::keyClicks(&text, QStringLiteral("nowhere at all"));
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text.text(), QStringLiteral("nowhere at all"));
}

// The ports of this machine are offered, and any other can be typed.
TEST_F(DialogsTest, SerialLinksTakeATypedPortAndAChosenRate)
{
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        auto& port = program.Find<QComboBox>("cboPort", &dialog);
        EXPECT_EQ(port.itemText(0), QStringLiteral("/dev/ttyS0"));
        Button(dialog, "OK").click(); // No port is chosen yet.
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClicks(port.lineEdit(), QStringLiteral("/dev/gps"));
        QTest::keyClick(&program.Find<QComboBox>("cboBaud", &dialog), Qt::Key_Down);
        program.Find<QCheckBox>("chkTracking", &dialog).click();
        Button(dialog, "OK").click();
    });
    mnuConnectGps_Click(program.main);
    EXPECT_EQ(program.wires.opened, "serial /dev/gps 9600");
    EXPECT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_FALSE(program.main.frmGps.bTrackGpsPosition);
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        QTest::keyClick(&program.Find<QComboBox>("cboPort", &dialog), Qt::Key_Down);
        Button(dialog, "OK").click();
    });
    mnuConnectWx_Click(program.main);
    EXPECT_EQ(program.wires.opened, "serial /dev/ttyS0 2400");
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
    mnuViewGPSPanel_Click(program.main);
    QDialog& dialog = Modeless("GPS Panel");
    ExpectAccessible(dialog);
    program.main.commDialog.bTncGps = true;
    aprs_ReportGpsData(program.main, {.lat = 40.5, .lon = -90, .bValid = true});
    EXPECT_EQ(program.Find<QLabel>("lblLat", &dialog).text(), QStringLiteral("40.5"));
    Button(dialog, "Command1").click();
    EXPECT_FALSE(dialog.isVisible());
    QTest::mouseClick(&program.window.Map(), Qt::LeftButton, {}, program.window.Map().rect().center());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(program.Find<QLabel>("lblDestLat", &dialog).text().isEmpty());
    Button(dialog, "Command2").click();
    EXPECT_TRUE(program.Find<QLabel>("lblDestLat", &dialog).text().isEmpty());
    dialog.close();
    EXPECT_FALSE(program.dialogs.IsVisible(Form::frmGpsPanel));
    mnuViewGPSPanel_Click(program.main);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DialogsTest, AboutOpensAndCloses)
{
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    program.Action("mnuHelpAbout").trigger();
}

TEST_F(DialogsTest, TheTileServerIsChosenTestedAndRefusedWhereItIsNone)
{
    WhenModal([&](QDialog& dialog) {
        ExpectAccessible(dialog);
        auto& server = program.Find<QComboBox>("cboServer", &dialog);
        server.setCurrentIndex(1);
        emit server.activated(1);
        EXPECT_EQ(Edit(dialog, "txtUrl").text().toStdString(), kTileServers[1].url);
        Button(dialog, "btnTest").click();
        ASSERT_TRUE(program.desktop.takePicture);
        program.desktop.takePicture({200, "", 1234, 256, 256});
        EXPECT_TRUE(program.Find<QLabel>("lblResult", &dialog).text().contains(QLatin1String("256 x 256")));
        Type(Edit(dialog, "txtUrl"), "https://tiles.example/");
        EXPECT_EQ(server.currentIndex(), -1);
        Button(dialog, "OK").click();
        EXPECT_TRUE(dialog.isVisible());
        Type(Edit(dialog, "txtUrl"), "https://tiles.example/{z}/{x}/{y}");
        Button(dialog, "OK").click();
    });
    mnuTileServer_Click(program.main);
    EXPECT_EQ(program.main.map.tiles.urlTemplate, "https://tiles.example/{z}/{x}/{y}");
}

} // namespace
} // namespace ruvenmark
