#include "desktop/panes/copy_keys.h"

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <QStringList>
#include <QWidget>

namespace ruvenmark {

namespace {

class CopyKeys final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return QObject::eventFilter(watched, event);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!key.matches(QKeySequence::Copy) && !key.matches(QKeySequence::SelectAll))
            return false;
        event->accept();
        return true;
    }
};

} // namespace

void KeepCopyKeys(QWidget& text)
{
    text.installEventFilter(new CopyKeys(&text));
}

QString RowText(const QModelIndex& row)
{
    QStringList texts;
    for (int column = 0; column < row.model()->columnCount(row.parent()); ++column)
        texts << row.siblingAtColumn(column).data().toString();
    return texts.join(QLatin1Char('\t'));
}

} // namespace ruvenmark
