#pragma once

#include "core/forms.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>

namespace ruvenmark {

class FormDialog;
class IconSet;

// The dialogs as windows. A modal one lives while it runs; a modeless one is made when it is first shown and belongs to
// the main window.
class QtDialogs final : public IDialogs {
public:
    explicit QtDialogs(const IconSet& icons); // Lent for the whole run.
    ~QtDialogs() override;

    void SetWindow(QWidget* window) { m_window = window; }

    void Run(Form form, MainWindow& main) override;
    void Show(Form form, MainWindow& main) override;
    void Hide(Form form) override;
    bool IsVisible(Form form) const override;
    void Refresh(Form form) override;
    void StandAside(Form form) override;
    void ComeBack(Form form) override;

private:
    struct Window {
        QPointer<FormDialog> dialog;
        bool bAside = false; // Hidden while the map is clicked; it counts as visible.
    };

    std::unique_ptr<FormDialog> Make(Form form, MainWindow& main) const;
    Window& Of(Form form) { return m_windows[Index(form)]; }
    const Window& Of(Form form) const { return m_windows[Index(form)]; }

    const IconSet& m_icons;
    QPointer<QWidget> m_window;
    std::array<Window, kForms.size()> m_windows;
};

} // namespace ruvenmark
