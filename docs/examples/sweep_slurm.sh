#!/bin/sh
#SBATCH --job-name=zentrik-sweep
#SBATCH --array=1-40
#SBATCH --cpus-per-task=1
#SBATCH --requeue
#SBATCH --output=shards/%a.log
# A sweep of 10,000 runs as a job array of Slurm: 40 shards in a folder that all machines see. A shard that fails is
# put back into the queue, up to five times; a machine that fails, Slurm puts its shards back by itself. Submitted
# again, the jobs whose shards are there end at once. What the array leaves is joined by the second line.
# Usage: mkdir -p shards; sbatch --wait sweep_slurm.sh
#        zentrik-cli merge shards/*.csv --out sweep.csv
set -eu
shard=$SLURM_ARRAY_TASK_ID
[ ! -e "shards/$shard.csv" ] || exit 0
zentrik-cli sweep "${PROJECT:-7 a walker.bot}" --vary DeltaAngle=1:5.95:0.05 \
    --vary "link 8..15.Force=0.05:0.545:0.005" --measure distance,height --time 5 --walls off --jobs 1 \
    --shard "$shard/40" --out "shards/$shard.csv" && exit 0
status=$?
if [ "${SLURM_RESTART_COUNT:-0}" -lt 5 ]; then
    scontrol requeue "${SLURM_ARRAY_JOB_ID}_$shard"
fi
exit $status
