#pragma once
// The update address split into the host to connect to and the path to ask
// for, as the update check has always split it.
#include <QString>

struct HttpAddress {
    QString host;
    QString path;  // without the "/" that separates it from the host
};

// An address without "/" is all host, with an empty path. Any other is
// lower-cased, stripped of every "http://" and then every "https://", and
// cut at its first "/"; the path therefore goes out in lower case.
HttpAddress SplitHttpAddress(const QString& address);
