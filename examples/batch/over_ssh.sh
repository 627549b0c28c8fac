#!/bin/sh
# SPDX-License-Identifier: LGPL-2.1-or-later
# Calendars on several computers by GNU parallel: over_ssh.sh orders.jsonl hosts 50
# "hosts" names a computer on each line, as parallel's --sshloginfile does; the list and all that it names lie in this
# folder, which every computer has at the same place. A shard that ends badly is begun anew, anywhere.
set -eu
list=$1 hosts=$2 shards=$3
seq "$shards" | parallel --sshloginfile "$hosts" --workdir "$PWD" --joblog parallel.log --retries 3 \
    "${MVCALENDAR:-mvcalendar}" batch "$list" --shard "{}/$shards" --jobs 1 --report "report-{}.jsonl"
