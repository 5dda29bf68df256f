#pragma once

#include "desktop/dialogs/form_dialog.h"
#include "platform/event.h"

#include <QTimer>

class QPlainTextEdit;

namespace ruvenmark {

class TextLog;

struct MonitorTexts {
    const char* caption;
    const char* control;
};

// frmTnc and frmTcpData: the last lines of a log, as they come. Not modal. While it is hidden nothing is drawn; the log
// goes on.
class MonitorDialog final : public FormDialog {
public:
    // The log outlives the window.
    MonitorDialog(TextLog& log, MonitorTexts texts, QWidget* parent);

    void Refresh() override;

private:
    const TextLog& m_log;
    QPlainTextEdit* m_view;
    std::size_t m_seen = 0; // Of the log, in bytes.
    QTimer m_timer;
    Subscription m_changed;
};

} // namespace ruvenmark
