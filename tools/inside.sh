#!/bin/sh
# Run by tools/fresh.sh in namespaces of its own: runs a command in the system that stands in a folder, in the clone
# there.
#   tools/inside.sh ROOT COMMAND...
set -eu
root=$1
shift
mount --bind "$root" "$root"  # a root that is a mount, so that mounts within can be kept from spreading
mount -t proc proc "$root/proc"
# Nothing of the machine's own /dev, not even by a bind mount: what is done to a node there is done to the machine's.
mount -t tmpfs -o mode=755 tmpfs "$root/dev"
while read -r name major minor; do
    mknod -m 666 "$root/dev/$name" c "$major" "$minor"
done <<'NODES'
null 1 3
zero 1 5
full 1 7
random 1 8
urandom 1 9
tty 5 0
NODES
mkdir "$root/dev/pts" "$root/dev/shm"
mount -t devpts -o newinstance,ptmxmode=666,mode=620,gid=5 devpts "$root/dev/pts"
mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
ln -s pts/ptmx "$root/dev/ptmx"
ln -s /proc/self/fd "$root/dev/fd"
ln -s fd/0 "$root/dev/stdin"
ln -s fd/1 "$root/dev/stdout"
ln -s fd/2 "$root/dev/stderr"

# This shell stays, as the first process of its namespace, and takes in those that lose their parents.
status=0
chroot "$root" env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
    ${CI+"CI=$CI"} ${TERM+"TERM=$TERM"} ${http_proxy+"http_proxy=$http_proxy"} \
    ${https_proxy+"https_proxy=$https_proxy"} ${no_proxy+"no_proxy=$no_proxy"} \
    sh -c 'cd /root/penwright && exec "$@"' sh "$@" || status=$?
exit "$status"
