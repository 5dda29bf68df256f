#pragma once

class QString;
class QWidget;

namespace ruvenmark {

// Name for tests and for accessibility; the label's text without its mnemonic is what is read out.
void NameControl(QWidget& control, const char* objectName, const QString& label);

// Pixels that a field needs for any latitude and longitude.
int CoordinatesWidth(const QWidget& field);

} // namespace ruvenmark
