#include "desktop/dialogs/frm_track_list_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/named_control.h"
#include "tracking/track_list_form_rules.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace ruvenmark {

FrmTrackListDialog::FrmTrackListDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    setWindowTitle(QStringLiteral("Track List"));
    auto* layout = new QVBoxLayout(this);
    AddLists(*layout);
    AddLineFields(*layout);
    AddSoundFields(*layout);
    layout->addStretch();
    layout->addLayout(MakeDialogButtons(*this, QStringLiteral("Trac&k")).row);
    resize(480, sizeHint().height());
}

void FrmTrackListDialog::accept()
{
    frmTrackList_Track(m_main.frmTrackList);
    QDialog::accept();
}

void FrmTrackListDialog::AddLists(QVBoxLayout& layout)
{
    constexpr std::array<const char*, 3> kNames = {"txtRfTrackList", "txtTcpTrackList", "txtFlTrackList"};
    constexpr std::array<const char*, 3> kMnemonics = {"R", "T", "file"};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        QString text = ForDisplay(kTrackListLabels[i]);
        const QString letter = QString::fromLatin1(kMnemonics[i]);
        text.insert(text.indexOf(letter), QLatin1Char('&'));
        auto* edit = new QLineEdit(this);
        NameControl(*edit, kNames[i], text);
        Bound().Bind(*edit, m_main.frmTrackList.txtTrackList[i]);
        auto* label = new QLabel(text, this);
        label->setBuddy(edit);
        layout.addWidget(label);
        layout.addWidget(edit);
    }
}

void FrmTrackListDialog::AddLineFields(QVBoxLayout& layout)
{
    TrackListForm& form = m_main.frmTrackList;
    layout.addWidget(MakeBox("chkTrackStation", QStringLiteral("&Shift map"), form.chkTrackStation));
    layout.addWidget(MakeBox("chkTrackLine", QStringLiteral("Show track &lines"), form.chkTrackLine));
    auto* fields = new QFormLayout;
    const QString size = QStringLiteral("Track line si&ze");
    const QString style = QStringLiteral("Track line st&yle");
    fields->addRow(size, MakeList("cboTLSize", size, kTrackLineSizes, form.cboTLSize));
    fields->addRow(style, MakeList("cboTLStyle", style, kTrackLineStyles, form.cboTLStyle));
    layout.addLayout(fields);
}

QComboBox* FrmTrackListDialog::MakeList(const char* name, const QString& label,
                                        std::span<const std::string_view> entries, std::int32_t& field)
{
    auto* list = new QComboBox(this);
    NameControl(*list, name, label);
    for (const std::string_view entry : entries)
        list->addItem(ForDisplay(entry));
    Bound().Bind(*list, field);
    return list;
}

void FrmTrackListDialog::AddSoundFields(QVBoxLayout& layout)
{
    TrackListForm& form = m_main.frmTrackList;
    const QString text = QStringLiteral("&Play wave file for incoming reports");
    layout.addWidget(MakeBox("chkPlayWave", text, form.chkPlayWave));
    auto* file = new QLineEdit(this);
    NameControl(*file, "txtTrackWaveFile", QStringLiteral("Wave file"));
    Bound().Bind(*file, form.txtTrackWaveFile);
    auto* browse = new QPushButton(QStringLiteral("&Browse"), this);
    NameControl(*browse, "cmdBrowse", QStringLiteral("Browse for a wave file"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [this] {
        frmTrackList_Browse(m_main);
        Refresh();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(file);
    row->addWidget(browse);
    layout.addLayout(row);
}

} // namespace ruvenmark
