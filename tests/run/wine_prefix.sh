#!/usr/bin/env bash
# Sets up Wine's prefix for the Wine tests once per test run, with no window: no display, and the
# installers of Wine's .NET and HTML engines turned off. Without Wine there is nothing to set up;
# a set-up that fails is told, and the Wine tests then find that Wine cannot start and skip.
prefix="$1"
if ! command -v wine >/dev/null; then
  echo "Wine is not installed: the Wine tests will be skipped."
  exit 0
fi
rm -rf "$prefix"
if env -u DISPLAY -u WAYLAND_DISPLAY WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" \
    wineboot -i >"$prefix.log" 2>&1; then
  wineserver_for_prefix="$(dirname "$(command -v wine)")/wineserver"
  WINEPREFIX="$prefix" "$wineserver_for_prefix" -w 2>/dev/null || true
  echo "Wine prefix ready in $prefix"
else
  echo "Wine could not set up its prefix (see $prefix.log): the Wine tests will be skipped."
fi
exit 0
