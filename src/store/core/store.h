#pragma once
// The contact store: the files on the drive, the staging area, the staged
// write and the ids. Every form reads and writes the store through these;
// none of them shows a message.
#include "store/core/batchwrites.h"
#include "store/core/categories.h"
#include "store/core/categorychanges.h"
#include "store/core/genid.h"
#include "store/core/ids.h"
#include "store/core/indexfiles.h"
#include "store/core/paths.h"
#include "store/core/record.h"
#include "store/core/result.h"
#include "store/core/snapshot.h"
#include "store/core/staging.h"
#include "store/core/text.h"
#include "store/core/wholefile.h"
