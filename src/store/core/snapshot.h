#pragma once
// The read snapshot: lists are read from copies in the staging area, not
// from the slow drive.
void CopyAddrFile();  // cat.dat -> addr_cat.dat, category.dat -> addr_category.dat
void DelAddrFile();   // deletes both copies
