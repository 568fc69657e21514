#pragma once
// The contact of one print list position, read into ContactBuffer.
#include "store/core/ids.h"

// False, with the buffer left alone, when the record file is missing (the
// job ignores that, so the contact before prints again). A country that is
// no number fails the print job (RoutineFailure). infoid is not read.
bool LoadPrintContact(const ContactId& contactId);
