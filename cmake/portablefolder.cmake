# What the portable folder holds besides the program and its string
# libraries, and what it leaves to the host. Shared libraries are not listed
# here: the making of the folder follows what the program, these plugins and
# the libraries loaded by name need, so a library that comes in later with a
# new Qt module or a new dependency is taken along without a line here.

# Qt plugins, by their path under Qt's plugin folder.
set(PORTABLE_PLUGINS
  platforms/libqxcb.so                                        # X11
  platforms/libqwayland-generic.so                            # Wayland (qt6-wayland)
  wayland-shell-integration/libxdg-shell.so                   # windows on today's compositors
  wayland-decoration-client/libbradient.so                    # a frame where the compositor draws none
  platforminputcontexts/libcomposeplatforminputcontextplugin.so  # dead keys and compose
  platforminputcontexts/libibusplatforminputcontextplugin.so  # input methods (Chinese and others)
  printsupport/libcupsprintersupport.so                       # the printers in the print dialog
  tls/libqopensslbackend.so                                   # https for the update check
)
# Taken along when the build machine has them.
set(PORTABLE_PLUGINS_IF_PRESENT
  sqldrivers/libqsqlite.so                                    # SQLite, for the mail-client import
)

# Libraries a plugin opens by name at run time, which no file names as needed:
# the OpenSSL backend opens OpenSSL 3.
set(PORTABLE_LOADED_BY_NAME libssl.so.3 libcrypto.so.3)

# Taken from the host, never bundled: the C library and the C++ run time;
# the client libraries of the X server, of Wayland and of the host's graphics
# driver, which must match the display the desktop runs; the client of the
# host's printing system (without it the print dialog offers files only);
# and Expat, which every desktop has and whose Debian 12 build alone with
# CUPS would ask for the C library 2.36 rather than 2.35.
set(PORTABLE_HOST_LIBRARIES
  linux-vdso.so.1 ld-linux-x86-64.so.2 libc.so.6 libm.so.6 libpthread.so.0 libdl.so.2 librt.so.1 libresolv.so.2
  libstdc++.so.6 libgcc_s.so.1
  libX11.so.6 libX11-xcb.so.1 libxcb.so.1 libXau.so.6 libXdmcp.so.6
  libwayland-client.so.0 libwayland-cursor.so.0 libwayland-egl.so.1
  libGL.so.1 libEGL.so.1 libGLX.so.0 libOpenGL.so.0 libGLdispatch.so.0
  libcups.so.2 libexpat.so.1
)
