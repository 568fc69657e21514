#pragma once
// The contact store: the files on the drive, the staging area, the staged
// write and the ids. Every form reads and writes the store through these.
#include "store/categories.h"
#include "store/genid.h"
#include "store/indexfiles.h"
#include "store/paths.h"
#include "store/record.h"
#include "store/snapshot.h"
#include "store/staging.h"
#include "store/text.h"
#include "store/wholefile.h"
