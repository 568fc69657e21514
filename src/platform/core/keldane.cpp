#include "platform/core/keldane.h"

#include <QDir>
#include "platform/core/codepage.h"
#include "platform/core/desktopaddressbooks.h"

void GetAddress11(qint32 mode, QByteArray& buffer, qint32& length, qint16& error) {
    QList<AddressPair> pairs;
    if (!ReadDesktopAddressBooks(QDir::homePath(), pairs) || pairs.isEmpty()) {
        error = 10;
        return;
    }
    QString text;
    for (const AddressPair& pair : pairs) text += "\"" + pair.name + "\",\"" + pair.mail + "\"\r\n";
    const QByteArray bytes = ToAnsi(text);
    error = 0;
    length = qint32(bytes.size());
    if (mode == 1) buffer.replace(0, qMin(buffer.size(), bytes.size()), bytes.left(buffer.size()));
}
