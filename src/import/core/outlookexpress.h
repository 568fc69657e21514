#pragma once
// frmsync's source: the address book through the two-call protocol of
// GetAddress11, name and e-mail per contact.
#include <QByteArray>
#include <functional>
#include "import/core/importsource.h"

using AddressProtocol = std::function<void(qint32 mode, QByteArray& buffer, qint32& length, qint16& error)>;

// Reads the address book into the sink, one row (name, e-mail, then five
// empty values) per line. False after message 611 (error 10), 614 (length
// below 1) or 615 (error in the second call); a failure while reading ends
// the read with true and the rows so far.
bool LoadOutlookExpress(SourceSink& sink, const AddressProtocol& protocol);
