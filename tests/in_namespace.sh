#!/bin/sh
# Runs a command in a network namespace of its own, with loopback up: the ports are fixed, and tests run side
# by side. Where the machine forbids that, the command runs as it is.
if [ "$(id -u)" = 0 ]; then flags=-n; else flags=-rn; fi
if unshare $flags true 2>/dev/null; then
    exec unshare $flags sh -c 'ip link set lo up && exec "$@"' sh "$@"
fi
exec "$@"
