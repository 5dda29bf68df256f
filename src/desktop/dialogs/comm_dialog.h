#pragma once

#include "desktop/dialogs/form_dialog.h"

class QFormLayout;

namespace ruvenmark {

struct MainWindow;
struct TncForm;

// commDialog: the TNC's serial port, or the AGW Packet Engine.
class CommDialog final : public FormDialog {
public:
    CommDialog(MainWindow& main, QWidget* parent);

    void accept() override;
    void reject() override;

private:
    void AddLinkFields(QFormLayout& fields);
    QWidget* MakeGpsFrame();
    void ShowState();

    MainWindow& m_main;
    TncForm& m_form;
    QFormLayout* m_fields = nullptr;
    std::vector<QWidget*> m_serial, m_socket;
    QCheckBox* m_gps = nullptr;
    QComboBox* m_sentence = nullptr;
    QComboBox* m_rate = nullptr;
};

} // namespace ruvenmark
