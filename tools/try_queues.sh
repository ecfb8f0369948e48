#!/bin/sh
# Runs the examples for GNU parallel and Slurm for real, with shards that are killed and disks that are full on their
# first try, and compares what they make with the sweep of one process. Prints a line each; ends with 1 when one
# differs. Installs both engines and a server of ssh; starts two of these servers and a cluster of one machine, on
# the loopback, and ends them. Where Slurm cannot be set up, it is left out with a sentence. To be run as root, best
# in a system of its own, which bare_room.sh makes:
#     bare_room.sh bookworm ./run "cmake --build build/program --target zentrik-cli" "tools/try_queues.sh build/program"
# Usage: try_queues.sh FOLDER_OF_ZENTRIK_CLI
set -eu
cd "$(dirname "$0")/.."
[ -x "${1:-}/zentrik-cli" ] || { echo "usage: try_queues.sh FOLDER_OF_ZENTRIK_CLI" >&2; exit 2; }
[ "$(id -u)" -eq 0 ] || { echo "Not run: the servers of ssh and Slurm need root." >&2; exit 2; }
install() {
    DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@" >/dev/null
}
install parallel rsync openssh-server
examples=$PWD/docs/examples
place=$(mktemp -d)
real=$(cd "$1" && pwd)
project="$PWD/zoo/7 a walker.bot"
status=0
# What is left behind a failure is what each said.
# shellcheck disable=SC2317 # called by the trap
end() {
    for server in "$place"/*.pid; do
        [ -s "$server" ] || continue
        process=$(cat "$server")
        kill "$process" && timeout 20 tail --pid="$process" -f /dev/null || kill -KILL "$process" || true
    done
    umount "$place/full" || true
    [ ! -e "$place/sys" ] || umount /sys || true
    [ "$status" -ne 0 ] || rm -rf "$place"
}
trap end EXIT

# A zentrik-cli whose first try of every fifth shard is killed in the middle and of every seventh meets a full disk.
mkdir -p "$place/bin" "$place/tried" "$place/full"
mount -t tmpfs -o size=4k none "$place/full"
cat >"$place/bin/zentrik-cli" <<WRAPPER
#!/bin/sh
for word; do case \$word in */40) shard=\${word%/*} ;; esac; done
if [ -n "\${shard:-}" ] && mkdir "$place/tried/\$(basename "\$PLACE")_\$shard" 2>/dev/null; then
    if [ \$((shard % 5)) -eq 0 ]; then exec timeout -s KILL 0.02 "$real/zentrik-cli" "\$@"; fi
    if [ \$((shard % 7)) -eq 0 ]; then exec "$real/zentrik-cli" "\$@" --out "$place/full/\$shard.csv"; fi
fi
exec "$real/zentrik-cli" "\$@"
WRAPPER
chmod +x "$place/bin/zentrik-cli"
export PATH="$place/bin:$PATH"

# compare NAME: the table that an example left in the folder of its name.
compare() {
    tried=$(find "$place/tried" -name "$1_*" | wc -l)
    if cmp -s "$place/whole.csv" "$place/$1/sweep.csv" && [ "$tried" -eq 40 ]; then
        echo "ok      $1"
    else
        echo "FAILED  $1: $tried of 40 shards were tried, see $place/$1.log"
        status=1
    fi
}
# begin NAME: its folder.
begin() {
    export PLACE="$place/$1"
    mkdir "$PLACE"
    cp "$project" "$PLACE"
    cd "$PLACE"
}

begin alone
"$real/zentrik-cli" sweep "7 a walker.bot" --vary DeltaAngle=1:5.95:0.05 --vary "link 8..15.Force=0.05:0.545:0.005" \
    --measure distance,height --time 5 --walls off --out "$place/whole.csv"

begin local
"$examples/sweep_parallel.sh" >"$place/local.log" 2>&1 || true
compare local

begin hosts
ssh-keygen -q -N "" -t ed25519 -f "$place/key"
mkdir -p /run/sshd
for port in 2251 2252; do
    cat >"$place/sshd_$port" <<CONFIG
Port $port
ListenAddress 127.0.0.1
HostKey $place/key
AuthorizedKeysFile $place/key.pub
PidFile $place/sshd_$port.pid
StrictModes no
PermitRootLogin prohibit-password
MaxStartups 100
SetEnv PATH=$PATH PLACE=$PLACE
CONFIG
    /usr/sbin/sshd -f "$place/sshd_$port" -E "$place/sshd_$port.log"
done
ssh="ssh -i $place/key -o StrictHostKeyChecking=no -o UserKnownHostsFile=/dev/null -o LogLevel=ERROR"
"$examples/sweep_parallel.sh" "2/$ssh -p 2251 127.0.0.1,2/$ssh -p 2252 127.0.0.1" >"$place/hosts.log" 2>&1 || true
compare hosts

leaveOut() {
    echo "left out  slurm: $1"
    exit $status
}
install munge slurm-wlm || leaveOut "its packages cannot be installed here."
begin slurm
# A system in a folder has none, and Slurm reads there what the machine is made of.
if [ ! -e /sys/devices ]; then mount -t sysfs -o ro none /sys && touch "$place/sys"; fi
[ -e /etc/munge/munge.key ] || /usr/sbin/mungekey
mkdir -p /run/munge && chown munge /run/munge /etc/munge/munge.key
runuser -u munge -- /usr/sbin/munged --force --pid-file /run/munge/munged.pid
cp /run/munge/munged.pid "$place/munged.pid"
export SLURM_CONF="$place/slurm.conf"
cat >"$SLURM_CONF" <<CONFIG
ClusterName=one
SlurmctldHost=$(hostname -s)(127.0.0.1)
SlurmctldPidFile=$place/slurmctld.pid
SlurmdPidFile=$place/slurmd.pid
SlurmUser=root
StateSaveLocation=$place/state
SlurmdSpoolDir=$place/spool
SlurmctldLogFile=$place/slurmctld.log
SlurmdLogFile=$place/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
SchedulerParameters=batch_sched_delay=1,sched_interval=5,requeue_delay=1
NodeName=$(hostname -s) NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
CONFIG
# Not used, and unlike the usual one content without mounted cgroups.
echo "CgroupPlugin=cgroup/v1" >"$place/cgroup.conf"
mkdir -p "$place/state" "$place/spool" shards
{ slurmctld && slurmd; } >"$place/slurm.log" 2>&1 || leaveOut "$(tail -qn 1 "$place"/slurm*d.log)"
sbatch --wait --export=ALL "$examples/sweep_slurm.sh" >>"$place/slurm.log" 2>&1 || true
zentrik-cli merge shards/*.csv --out sweep.csv >>"$place/slurm.log" 2>&1 || true
compare slurm
exit $status
