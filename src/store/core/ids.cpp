#include "store/core/ids.h"

QString IdText(int number) {
    QString text = "00000" + QString::number(number);
    return text.right(5);
}
