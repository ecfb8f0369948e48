#!/bin/sh
# A sweep of 10,000 runs by GNU parallel: 40 shards, each made by the next core that is free, here or on the machines
# that are named. A shard that fails (its machine is gone, its disk is full, somebody killed it) is made again, up to
# five times and on another machine where there is one. Started again, the script makes only what is not there yet.
# Usage: sweep_parallel.sh [HOST,...]      machines that ssh reaches and that have zentrik-cli
set -eu
project=${PROJECT:-7 a walker.bot}
mkdir -p shards
cp "$project" shards/project.bot
cd shards
set -- ${1:+--sshlogin "$1" --workdir ... --transferfile project.bot --return "{}.csv" --cleanup}
for shard in $(seq 40); do
    [ -e "$shard.csv" ] || echo "$shard"
done | parallel --retries 5 "$@" \
    zentrik-cli sweep project.bot --vary DeltaAngle=1:5.95:0.05 --vary "'link 8..15.Force=0.05:0.545:0.005'" \
    --measure distance,height --time 5 --walls off --jobs 1 --shard {}/40 --out {}.csv
cd ..
zentrik-cli merge shards/*.csv --out sweep.csv
