#!/bin/sh
# Runs a command with a desktop keyring of its own: in a D-Bus session of its own (start this
# script under dbus-run-session), gnome-keyring answers as the Secret Service, unlocked, its
# keyring made afresh in a folder under $HOME. With a secret given, it is stored first as
# msmtp's users store theirs.
#
# usage: dbus-run-session -- sh keyring.sh HOST USER SECRET|"" COMMAND [ARGUMENT...]
set -e
host=$1 user=$2 secret=$3
shift 3
export XDG_DATA_HOME="$HOME/keyring" XDG_RUNTIME_DIR="$HOME/runtime"
rm -rf "$XDG_DATA_HOME"
mkdir -p "$XDG_DATA_HOME" && mkdir -p -m 700 "$XDG_RUNTIME_DIR"
printf 'unlock' | gnome-keyring-daemon --unlock --components=secrets >/dev/null
# The daemon answers on the bus a moment after it returns; a store before that would start a
# second one, without the unlocked keyring.
until dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
    org.freedesktop.DBus.NameHasOwner string:org.freedesktop.secrets | grep -q 'boolean true'; do
  sleep 0.1
done
if [ -n "$secret" ]; then
  printf '%s' "$secret" | secret-tool store --label=msmtp host "$host" service smtp user "$user"
fi
exec "$@"
