#include "desktop/named_control.h"

#include <QString>
#include <QWidget>

namespace ruvenmark {

void NameControl(QWidget& control, const char* objectName, const QString& label)
{
    control.setObjectName(QString::fromLatin1(objectName));
    control.setAccessibleName(QString(label).remove(QLatin1Char('&')));
}

int CoordinatesWidth(const QWidget& field)
{
    return field.fontMetrics().horizontalAdvance(QStringLiteral("88°88.888'N 188°88.888'W")) + 24;
}

} // namespace ruvenmark
