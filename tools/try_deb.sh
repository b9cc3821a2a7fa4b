#!/bin/bash
# Runs inside the clean Debian: the package comes, works, and goes without a trace.
#
#   try_deb.sh VERSION     with stmdata.deb beside it
set -eu
cd "$(dirname "$0")"
version=$1

# What dpkg and the loader write about every package is no trace of this one.
everything() { find / -xdev \( -path /proc -o -path /dev -o -path /var/lib/dpkg -o -path /try \) -prune -o -printf '%p %l\n' | sort; }

everything >before
dpkg -i stmdata.deb
dpkg --verify stmdata
[ "$(dpkg-query -W -f '${Version}' stmdata)" = "$version" ]
if ldd /usr/bin/stmon /usr/lib/i386-linux-gnu/libstmdata.so | grep 'not found'; then exit 1; fi
ldd /usr/bin/stmon | grep -F '/lib/i386-linux-gnu/libstmdata.so.0 '
stmon --version | grep -F "$version"
status=0
stmon --scenario no-paper >answer || status=$?
cat answer
[ $status -eq 2 ] && [ -s answer ]
dpkg -r stmdata
everything >after
diff before after
if dpkg-query -W stmdata; then exit 1; fi
