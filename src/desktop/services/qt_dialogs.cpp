#include "desktop/services/qt_dialogs.h"

#include "core/main_window.h"
#include "desktop/dialogs/about_dialog.h"
#include "desktop/dialogs/find_dialog.h"
#include "desktop/dialogs/frm_filter_dialog.h"
#include "desktop/dialogs/frm_import_dialog.h"
#include "desktop/dialogs/frm_region_dialog.h"
#include "desktop/dialogs/frm_track_list_dialog.h"

#include <utility>

namespace ruvenmark {

namespace {

void BringToFront(QDialog& dialog)
{
    if (dialog.isMinimized())
        dialog.showNormal();
    else
        dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

std::int32_t QtDialogs::RunRegion()
{
    FrmRegionDialog dialog(m_window);
    dialog.exec();
    return dialog.SelectedRegion();
}

void QtDialogs::RunImport(MainWindow& main)
{
    FrmImportDialog(main.frmImport, main.services.prompts, m_window).exec();
}

void QtDialogs::RunTrackList(MainWindow& main)
{
    FrmTrackListDialog(main, m_window).exec();
}

void QtDialogs::RunAbout(MainWindow& /*main*/)
{
    AboutDialog(m_icons, m_window).exec();
}

void QtDialogs::ShowFilter(MainWindow& main)
{
    m_bFilterAside = false;
    if (!m_filter)
        m_filter = new FrmFilterDialog(main, m_window);
    else
        m_filter->Refresh();
    BringToFront(*m_filter);
}

bool QtDialogs::IsFilterVisible() const
{
    return m_filter && (m_filter->isVisible() || m_bFilterAside);
}

void QtDialogs::ShowFind(MainWindow& main)
{
    if (!m_find)
        m_find = new FindDialog(main, m_places, m_window);
    BringToFront(*m_find);
    m_find->Prepare();
}

// A window that belongs to another one cannot be put behind it: it is hidden for as long.
void QtDialogs::StandAside()
{
    if (!m_filter || !m_filter->isVisible())
        return;
    m_bFilterAside = true;
    m_filter->hide();
}

void QtDialogs::ComeBack()
{
    if (!std::exchange(m_bFilterAside, false) || !m_filter)
        return;
    m_filter->Refresh();
    BringToFront(*m_filter);
}

} // namespace ruvenmark
