#pragma once

#include "desktop/dialogs/form_dialog.h"
#include "platform/dictionary.h"

#include <string>

class QAbstractButton;
class QGroupBox;
class QVBoxLayout;

namespace ruvenmark {

struct MainWindow;
struct ServerForm;

// frmTcp: the APRS server and its backup.
class FrmTcpDialog final : public FormDialog {
public:
    FrmTcpDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    void AddPrimary(QVBoxLayout& layout);
    void AddReconnect(QVBoxLayout& layout);
    void AddBackup(QVBoxLayout& layout);
    void AddChecks(QAbstractButton& cancel);
    void OnReconnect();
    void EnableBackup();
    QComboBox* MakeList(const char* name, const QString& label, const Dictionary<std::string>& items,
                        std::string& field);
    void Check(QWidget& field, QAbstractButton& cancel, std::string (*rule)(const ServerForm&));

    MainWindow& m_main;
    ServerForm& m_form;
    QComboBox* m_port = nullptr;
    QComboBox* m_backupPort = nullptr;
    QLineEdit* m_number = nullptr;
    QGroupBox* m_backup = nullptr;
};

} // namespace ruvenmark
