#!/bin/sh
# Runs a command with TANDRY_SCRATCH_DRIVE naming a fresh FAT image
# (mkfs.vfat, Debian dosfstools), loop-mounted as root through the kernel's
# vfat. With --fuse-ok first, fusefat stands in where the kernel has no vfat:
# only for short checks of names, since fusefat can spin for ever on an unlink
# among the store's renames. Where nothing can mount, says why and exits 77:
# the test is skipped.
set -u
fuse_ok=
[ "${1:-}" = --fuse-ok ] && { fuse_ok=1; shift; }
work=$(mktemp -d)
trap 'umount "$work/mnt" 2>/dev/null; rm -rf "$work"' EXIT
skip() {
  echo "SKIPPED: no FAT image could be mounted: $1"
  exit 77
}
[ "$(id -u)" = 0 ] || skip "mounting needs root"
command -v mkfs.vfat >/dev/null || skip "mkfs.vfat missing (Debian dosfstools)"
mkdir "$work/mnt"
truncate -s "${TANDRY_FAT_SIZE:-64M}" "$work/fat.img"
mkfs.vfat -n TANDRY "$work/fat.img" >/dev/null || skip "mkfs.vfat failed"
if mount -t vfat -o loop "$work/fat.img" "$work/mnt" 2>"$work/why"; then
  how="the kernel's vfat on a loop device"
elif [ -n "$fuse_ok" ] && command -v fusefat >/dev/null && [ -e /dev/fuse ] && fusefat -o rw+ "$work/fat.img" "$work/mnt" >/dev/null 2>>"$work/why"; then
  how="fusefat"
else
  [ -z "$fuse_ok" ] && echo "(fusefat is not used for the store's roads: it can hang on an unlink)" >>"$work/why"
  skip "$(tr '\n' ' ' <"$work/why")"
fi
echo "FAT image mounted through $how"
TANDRY_SCRATCH_DRIVE="$work/mnt" TANDRY_FAT_MOUNT="$how" "$@"
