#include "desktop/dialogs/find_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/dialog_buttons.h"
#include "desktop/named_control.h"
#include "desktop/shown_text.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

constexpr std::size_t kMostRows = 50;

QString RowText(const FoundPlace& found)
{
    QString text = ForDisplay(found.name);
    if (!found.detail.empty())
        text += QStringLiteral(" – ") + ForDisplay(found.detail);
    return text;
}

} // namespace

FindDialog::FindDialog(MainWindow& main, QWidget* parent)
    : FormDialog(parent), m_main(main), m_text(new QLineEdit(this)), m_list(new QListWidget(this))
{
    setWindowTitle(QStringLiteral("Find"));
    auto* label = new QLabel(QStringLiteral("&Place or station"), this);
    label->setBuddy(m_text);
    NameControl(*m_text, "txtFind", label->text());
    NameControl(*m_list, "lstFound", QStringLiteral("What was found"));
    m_text->setClearButtonEnabled(true);
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("&Go There"));
    buttons.cancel->setText(QStringLiteral("Close"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_text);
    layout->addWidget(m_list);
    layout->addLayout(buttons.row);
    resize(360, 420);
    Bound().Bind(*m_text, main.frmFind.txtFind);
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::textChanged, this, &FindDialog::Search);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &FindDialog::accept);
}

void FindDialog::Refresh()
{
    FormDialog::Refresh();
    m_text->setFocus();
    m_text->selectAll();
    Search(); // Stations may have come and gone.
}

void FindDialog::accept()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    const FoundPlace found = m_found[static_cast<std::size_t>(row)];
    QDialog::accept();
    GoToFound(m_main, found);
}

// The arrows move in the list while the text keeps the focus.
bool FindDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(m_list, event);
    }
    return FormDialog::eventFilter(watched, event);
}

void FindDialog::Search()
{
    const QString text = m_text->text().trimmed();
    m_found = Find(m_main, m_main.services.places, text.toStdString(), kMostRows);
    m_list->clear();
    for (const FoundPlace& found : m_found)
        m_list->addItem(RowText(found));
    if (!m_found.empty()) {
        m_list->setCurrentRow(0);
    } else if (!text.isEmpty()) {
        auto* none = new QListWidgetItem(QStringLiteral("Nothing of this name"), m_list);
        none->setFlags(Qt::NoItemFlags);
    }
}

} // namespace ruvenmark
