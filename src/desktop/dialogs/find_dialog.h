#pragma once

#include "desktop/dialogs/form_dialog.h"
#include "map/find.h"

#include <vector>

class QLineEdit;
class QListWidget;

namespace ruvenmark {

struct MainWindow;

// Finds stations, markers and places while the operator types; Enter goes to the one that is chosen.
class FindDialog final : public FormDialog {
public:
    FindDialog(MainWindow& main, QWidget* parent);

    // Ready for another text; the former one stays until it is typed over.
    void Refresh() override;
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Search();

    MainWindow& m_main;
    QLineEdit* m_text;
    QListWidget* m_list;
    std::vector<FoundPlace> m_found; // By row of the list.
};

} // namespace ruvenmark
