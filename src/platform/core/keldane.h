#pragma once
// The address-book library of the Windows build, replaced: the same
// two-call protocol, fed by the desktop's address books of the user's home.
#include <QByteArray>
#include <QtGlobal>

// mode 0: `length` gets the number of bytes of the text; `buffer` is left
// alone. mode 1: the text is written into `buffer`, at most its size. The
// text: one line "name","e-mail" per contact, each ended by CR LF, in the
// Windows code page. `error` gets 0, or 10 when there is no address-book
// data: no book found, or no contact in any.
void GetAddress11(qint32 mode, QByteArray& buffer, qint32& length, qint16& error);
