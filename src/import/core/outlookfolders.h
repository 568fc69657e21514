#pragma once
// frmsync1's source: the contact folders of an Outlook message store, each
// folder holding items becoming a category, each contact a row.
#include <QString>
#include <functional>
#include <memory>
#include <vector>
#include "import/core/importsource.h"
#include "platform/core/outlookapplication.h"

using FolderCollection = std::vector<std::shared_ptr<MAPIFolder>>;

// Adds `folder` to the collection when it holds items, then walks its
// sub-folders, whatever their item type.
void CollectContactFolders(const std::shared_ptr<MAPIFolder>& folder, FolderCollection& collection);

// From the store's top folder: its direct children of type contacts are
// walked; `addCategories` gets the folder names, each followed by CR LF;
// then one row per contact (ListView1's sub-items 2 to 12, each value
// trimmed). False when `first` is null, category.dat can't be read, or an
// item is no contact: the load ends there.
bool LoadOutlookFolders(const std::shared_ptr<MAPIFolder>& first, SourceSink& sink,
                        const std::function<void(const QString& names)>& addCategories);
