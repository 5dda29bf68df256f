#pragma once

#include <QTextBrowser>

namespace ruvenmark {

// Shows the manual: pictures named qrc:/….svg?SIZE are drawn SIZE points wide for the screen, not enlarged. Follows no
// link out of the page.
class HelpBrowser : public QTextBrowser {
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

} // namespace ruvenmark
