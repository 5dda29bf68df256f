#pragma once

#include <QSize>
#include <QString>

namespace ruvenmark {

class MainWindowView;

// Lets the window finish what it draws, and writes it to a picture file. Raises Failure.
void SaveScreenshot(MainWindowView& window, QSize size, const QString& path);

} // namespace ruvenmark
