#pragma once

#include <QObject>

#include <functional>

class QAbstractButton;
class QWidget;

namespace ruvenmark {

// Checks a field when the operator leaves it for another one of its dialog, but not on the way to the button that
// throws everything away, nor to another window.
class FieldCheck final : public QObject {
public:
    // `mayLeave` tells what is wrong, if anything, and whether the focus may go on. Lives as long as the field.
    FieldCheck(QWidget& field, QAbstractButton& cancel, std::function<bool()> mayLeave);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Check();

    QWidget& m_field; // A line, or a list with one.
    QAbstractButton& m_cancel;
    std::function<bool()> m_mayLeave;
};

} // namespace ruvenmark
