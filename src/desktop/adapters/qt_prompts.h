#pragma once

#include "platform/prompts.h"

#include <QPointer>
#include <QWidget>

namespace ruvenmark {

// Message boxes and file dialogs over the window in front.
class QtPrompts final : public IPrompts {
public:
    void SetWindow(QWidget* window) { m_window = window; }

    void Message(std::string_view text) override;
    bool AskYesNo(std::string_view text) override;
    bool AskToDelete(std::string_view text) override;
    Answer AskYesNoCancel(std::string_view text) override;
    std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) override;
    std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) override;

private:
    QWidget* Owner() const;

    QPointer<QWidget> m_window;
};

} // namespace ruvenmark
