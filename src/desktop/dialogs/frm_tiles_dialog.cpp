#include "desktop/dialogs/frm_tiles_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/named_control.h"
#include "map/tile_form_rules.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

// Of so many lines, whatever it says: nothing below it moves.
QLabel* MakeNote(QWidget& parent, const char* name, const QString& accessibleName, int lines)
{
    auto* note = new QLabel(&parent);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    note->setFixedHeight(lines * note->fontMetrics().lineSpacing());
    NameControl(*note, name, accessibleName);
    return note;
}

} // namespace

FrmTilesDialog::FrmTilesDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    constexpr int kLettersWide = 60;
    TileForm& form = main.frmTiles;
    setWindowTitle(QStringLiteral("Tile Server"));
    auto* server = new QComboBox(this);
    for (const KnownTileServer& each : kTileServers)
        server->addItem(ForDisplay(each.name));
    server->setPlaceholderText(QStringLiteral("Another server"));
    auto* url = new QLineEdit(this);
    auto* credit = new QLineEdit(this);
    url->setMinimumWidth(kLettersWide * fontMetrics().averageCharWidth());
    credit->setPlaceholderText(QStringLiteral("the name of the server"));
    auto* online = new QCheckBox(QStringLiteral("Show these &tiles"), this);
    auto* test = new QPushButton(QStringLiteral("T&est"), this);
    test->setAutoDefault(false);
    QLabel* policy = MakeNote(*this, "lblPolicy", QStringLiteral("About this server"), 3);
    QLabel* result = MakeNote(*this, "lblResult", QStringLiteral("Result of the test"), 2);
    NameControl(*server, "cboServer", QStringLiteral("Server"));
    NameControl(*url, "txtUrl", QStringLiteral("Address"));
    NameControl(*credit, "txtCredit", QStringLiteral("Credit on the map"));
    NameControl(*online, "chkOnline", online->text());
    NameControl(*test, "btnTest", test->text());
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("OK"));

    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("&Server"), server);
    fields->addRow(QString(), policy);
    fields->addRow(QStringLiteral("&Address"), url);
    fields->addRow(QStringLiteral("&Credit on the map"), credit);
    auto* tested = new QHBoxLayout;
    tested->addWidget(test, 0, Qt::AlignTop);
    tested->addWidget(result, 1);
    fields->addRow(QString(), tested);
    fields->addRow(QString(), online);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addLayout(buttons.row);

    Bound().Bind(*server, form.cboServer);
    Bound().Bind(*url, form.txtUrl);
    Bound().Bind(*credit, form.txtCredit);
    Bound().Bind(*online, form.chkOnline);
    Bound().Bind(*policy, form.lblPolicy);
    Bound().Bind(*result, form.lblResult);
    connect(server, &QComboBox::activated, this, [this] {
        frmTiles_cboServer_Click(m_main.frmTiles);
        Refresh();
    });
    connect(url, &QLineEdit::textEdited, this, [this] {
        frmTiles_txtUrl_Change(m_main.frmTiles);
        Refresh();
    });
    connect(test, &QPushButton::clicked, this, [this] {
        frmTiles_Test(m_main);
        Refresh();
    });
}

void FrmTilesDialog::accept()
{
    if (frmTiles_Accept(m_main.frmTiles))
        QDialog::accept();
    else
        Refresh();
}

} // namespace ruvenmark
