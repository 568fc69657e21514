#include "print/core/printcontact.h"

#include "store/core/failure.h"
#include "store/core/record.h"

bool LoadPrintContact(const ContactId& contactId) {
    switch (ReadRecordInto(contactId, InfoIdFrom::Untouched)) {
    case RecordRead::Read: return true;
    case RecordRead::Missing: return false;
    case RecordRead::CountryNoNumber: break;
    }
    throw RoutineFailure("the country of the record is no number");
}
