#pragma once

#include <QTextDocument>
#include <QWidget>

#include <string>

class QLineEdit;
class QUrl;

namespace ruvenmark {

class HelpBrowser;
struct MainWindow;

// The pages of the right pane: the manual, and what is said of pages that the system's browser shows. Ctrl+F finds in
// the page.
class HelpView final : public QWidget {
public:
    HelpView(MainWindow& main, QWidget* parent = nullptr);

    // The page that the logic wants; the same one again changes nothing, so that the reader stays where he was.
    void Show();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeFindLine();
    bool Press(const QKeyEvent& key);
    void OpenFindLine();
    void CloseFindLine();
    void FindNext(QTextDocument::FindFlags flags = {});
    void Follow(const QUrl& link);

    MainWindow& m_main;
    HelpBrowser* m_browser;
    QLineEdit* m_find;   // Hidden until it is asked for.
    std::string m_shown; // Its address, or the notice itself.
};

} // namespace ruvenmark
