#pragma once
// Edit of the list's selected contact, by a double click or mnuEdit_p.
class FrmMain;

// The double click reads the id from the file and clears the buffer first;
// mnuEdit_p reads with ReadContact into the buffer as it stands.
void EditSelectedContact(FrmMain& window, bool fromMenu);
