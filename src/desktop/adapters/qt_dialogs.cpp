#include "desktop/adapters/qt_dialogs.h"

#include "core/main_window.h"
#include "desktop/dialogs/about_dialog.h"
#include "desktop/dialogs/comm_dialog.h"
#include "desktop/dialogs/find_dialog.h"
#include "desktop/dialogs/frm_filter_dialog.h"
#include "desktop/dialogs/frm_gps_dialog.h"
#include "desktop/dialogs/frm_gps_panel.h"
#include "desktop/dialogs/frm_import_dialog.h"
#include "desktop/dialogs/frm_message_dialog.h"
#include "desktop/dialogs/frm_object_dialog.h"
#include "desktop/dialogs/frm_open_message_dialog.h"
#include "desktop/dialogs/frm_options_dialog.h"
#include "desktop/dialogs/frm_position_dialog.h"
#include "desktop/dialogs/frm_region_dialog.h"
#include "desktop/dialogs/frm_status_dialog.h"
#include "desktop/dialogs/frm_tcp_dialog.h"
#include "desktop/dialogs/frm_tiles_dialog.h"
#include "desktop/dialogs/frm_track_list_dialog.h"
#include "desktop/dialogs/frm_weather_dialog.h"
#include "desktop/dialogs/frm_wx_dialog.h"
#include "desktop/dialogs/monitor_dialog.h"

#include <stdexcept>
#include <utility>

namespace ruvenmark {

namespace {

void BringToFront(FormDialog& dialog)
{
    if (dialog.isMinimized())
        dialog.showNormal();
    else
        dialog.ComeBack();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

QtDialogs::QtDialogs(const IconSet& icons) : m_icons(icons) {}

QtDialogs::~QtDialogs() = default;

std::unique_ptr<FormDialog> QtDialogs::Make(Form form, MainWindow& main) const
{
    switch (form) {
    case Form::frmRegion:
        return std::make_unique<FrmRegionDialog>(main.frmRegion, m_window);
    case Form::frmImport:
        return std::make_unique<FrmImportDialog>(main.frmImport, main.services.prompts, m_window);
    case Form::frmTrackList:
        return std::make_unique<FrmTrackListDialog>(main, m_window);
    case Form::frmAbout:
        return std::make_unique<AboutDialog>(m_icons, m_window);
    case Form::frmFilter:
        return std::make_unique<FrmFilterDialog>(main, m_window);
    case Form::frmFind:
        return std::make_unique<FindDialog>(main, m_window);
    case Form::frmGps:
        return std::make_unique<FrmGpsDialog>(main, m_window);
    case Form::frmWx:
        return std::make_unique<FrmWxDialog>(main, m_window);
    case Form::frmGpsPanel:
        return std::make_unique<FrmGpsPanel>(main, m_window);
    case Form::frmPosition:
        return std::make_unique<FrmPositionDialog>(main, m_window);
    case Form::frmWeather:
        return std::make_unique<FrmWeatherDialog>(main, m_window);
    case Form::frmStatus:
        return std::make_unique<FrmStatusDialog>(main, m_window);
    case Form::frmObject:
        return std::make_unique<FrmObjectDialog>(main, m_window);
    case Form::commDialog:
        return std::make_unique<CommDialog>(main, m_window);
    case Form::frmTnc:
        return std::make_unique<MonitorDialog>(main.monitors.txtTNCData, MonitorTexts{"TNC Data", "txtTNCData"},
                                               m_window);
    case Form::frmTcpData:
        return std::make_unique<MonitorDialog>(main.monitors.txtTCPData, MonitorTexts{"TCP Data", "txtTCPData"},
                                               m_window);
    case Form::frmTcp:
        return std::make_unique<FrmTcpDialog>(main, m_window);
    case Form::frmMessage:
        return std::make_unique<FrmMessageDialog>(main, m_window);
    case Form::frmOpenMessage:
        return std::make_unique<FrmOpenMessageDialog>(main.frmOpenMessage, m_window);
    case Form::frmTiles:
        return std::make_unique<FrmTilesDialog>(main, m_window);
    case Form::frmOptions:
        return std::make_unique<FrmOptionsDialog>(main, m_window);
    }
    throw std::logic_error("no such form");
}

void QtDialogs::Run(Form form, MainWindow& main)
{
    const std::unique_ptr<FormDialog> dialog = Make(form, main);
    Of(form).dialog = dialog.get();
    dialog->exec();
}

void QtDialogs::Show(Form form, MainWindow& main)
{
    Window& window = Of(form);
    window.bAside = false;
    if (!window.dialog)
        window.dialog = Make(form, main).release(); // The main window owns it.
    window.dialog->Refresh();
    BringToFront(*window.dialog);
}

void QtDialogs::Hide(Form form)
{
    Window& window = Of(form);
    window.bAside = false;
    if (window.dialog)
        window.dialog->close();
}

bool QtDialogs::IsVisible(Form form) const
{
    const Window& window = Of(form);
    return window.dialog && (window.dialog->isVisible() || window.bAside);
}

void QtDialogs::Refresh(Form form)
{
    if (IsVisible(form))
        Of(form).dialog->Refresh();
}

// A window that belongs to another one cannot be put behind it: it is hidden for as long.
void QtDialogs::StandAside(Form form)
{
    Window& window = Of(form);
    if (!window.dialog || !window.dialog->isVisible())
        return;
    window.bAside = true;
    window.dialog->hide();
}

void QtDialogs::ComeBack(Form form)
{
    Window& window = Of(form);
    if (!std::exchange(window.bAside, false) || !window.dialog)
        return;
    window.dialog->Refresh();
    BringToFront(*window.dialog);
}

} // namespace ruvenmark
