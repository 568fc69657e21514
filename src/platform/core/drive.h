#pragma once
// A drive letter has no meaning here: the "drive" of a path is the mount
// point of the file system that holds it.
#include <QString>

QString MountPointOf(const QString& path);
// <mount point of the application folder>/Program/Bin/OwnerInfo.ini
QString OwnerInfoPath(const QString& appFolder);
