#include "desktop/adapters/qt_prompts.h"

#include "desktop/shown_text.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFontMetrics>
#include <QHeaderView>
#include <QMessageBox>
#include <QScreen>
#include <QTreeView>

#include <utility>

namespace ruvenmark {

namespace {

constexpr int kCellMargin = 12;

int RunBox(QWidget* owner, QMessageBox::Icon icon, std::string_view text, QMessageBox::StandardButtons buttons,
           QMessageBox::StandardButton first)
{
    QMessageBox box(icon, QStringLiteral("Ruvenmark"), ForDisplay(text), buttons, owner);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(first);
    return box.exec();
}

// The toolkit's own dialog cuts off sizes and dates; that of the system has no such list.
void ShowWholeDetails(QFileDialog& dialog)
{
    constexpr QSize kComfortable(760, 480);
    auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!list)
        return;
    dialog.resize(kComfortable.boundedTo(dialog.screen()->availableSize()));
    const QFontMetrics metrics(list->font());
    for (const auto& [column, sample] : {std::pair(1, "8888.88 KiB"), std::pair(3, "28 Mmm 2028 28:28:28")})
        list->header()->resizeSection(column, metrics.horizontalAdvance(QLatin1String(sample)) + kCellMargin);
}

std::optional<std::string> RunFileDialog(QFileDialog& dialog, FileFilter filter)
{
    ShowWholeDetails(dialog);
    // "*.*" stands for every file, also one without a point in its name.
    const std::string pattern(filter.pattern == "*.*" ? "*" : filter.pattern);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(ForDisplay(filter.label) + QStringLiteral(" (") + QString::fromStdString(pattern) +
                         QStringLiteral(")"));
    if (pattern.starts_with("*.") && pattern.size() > 2)
        dialog.setDefaultSuffix(QString::fromStdString(pattern.substr(2)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

} // namespace

void QtPrompts::Message(std::string_view text)
{
    RunBox(Owner(), QMessageBox::Information, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtPrompts::AskYesNo(std::string_view text)
{
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return RunBox(Owner(), QMessageBox::Question, text, buttons, QMessageBox::Yes) == QMessageBox::Yes;
}

bool QtPrompts::AskToDelete(std::string_view text)
{
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return RunBox(Owner(), QMessageBox::Question, text, buttons, QMessageBox::No) == QMessageBox::Yes;
}

Answer QtPrompts::AskYesNoCancel(std::string_view text)
{
    const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    switch (RunBox(Owner(), QMessageBox::Question, text, buttons, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::optional<std::string> QtPrompts::OpenFile(std::string_view title, FileFilter filter)
{
    QFileDialog dialog(Owner(), ForDisplay(title));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return RunFileDialog(dialog, filter);
}

std::optional<std::string> QtPrompts::SaveFile(std::string_view title, FileFilter filter)
{
    QFileDialog dialog(Owner(), ForDisplay(title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return RunFileDialog(dialog, filter);
}

// A box that asks about a dialog's field belongs over that dialog.
QWidget* QtPrompts::Owner() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return active ? active : m_window.data();
}

} // namespace ruvenmark
