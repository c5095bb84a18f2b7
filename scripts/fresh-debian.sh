#!/usr/bin/env bash
# Runs a command of the README in a fresh minimal Debian 12 root, as a new user would on a new
# machine: nothing installed but what debootstrap's minimal variant brings, the checkout copied in,
# then the command run there as root. A package, font, locale or file that the project's own files
# fail to install fails here, instead of on a user's machine.
#
#   bash scripts/fresh-debian.sh                  # the README's test command
#   bash scripts/fresh-debian.sh scripts/run.sh   # any script of the checkout
#
# The root is made anew under $CONTARELLO_FRESH_ROOT (default /var/tmp/contarello-fresh) and left
# there afterwards to look into; the next run removes it first. Needs root (or sudo) and Debian's
# archive, reached as apt is configured on this machine.
set -euo pipefail
cd "$(dirname "$0")/.."
checkout="$PWD"
command=("${@:-scripts/test.sh}")

if [ "$(id -u)" -ne 0 ]; then
    exec sudo --preserve-env=CI,CONTARELLO_FRESH_ROOT,CONTARELLO_FRESH_REUSE bash "$0" "$@"
fi

root="${CONTARELLO_FRESH_ROOT:-/var/tmp/contarello-fresh}"
case "$root" in /|"") echo "refusing to use '$root' as the fresh root" >&2; exit 2 ;; esac

if ! command -v debootstrap >/dev/null; then
    apt-get update -q
    DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends debootstrap
fi

# The archive apt uses here for bookworm's main suite, from either kind of sources file.
mirror() {
    local f
    for f in /etc/apt/sources.list.d/*.sources; do
        [ -f "$f" ] || continue
        awk 'BEGIN { RS = ""; FS = "\n" }
             /(^|\n)Suites:[^\n]*bookworm([ \t\n]|$)/ && !/(^|\n)Enabled: *no/ {
                 for (i = 1; i <= NF; i++) if ($i ~ /^URIs:/) { split($i, u, /[ \t]+/); print u[2]; exit }
             }' "$f"
    done
    cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null |
        awk '$1 == "deb" && $0 ~ / bookworm / { for (i = 2; i <= NF; i++) if ($i !~ /^\[/) { print $i; exit } }'
    return 0
}
archive="$(mirror | head -n 1 || true)"
archive="${archive:-http://deb.debian.org/debian}"

mounted=()
cleanup() {
    local i
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do umount -l "${mounted[i]}" 2>/dev/null || true; done
}
trap cleanup EXIT
bind() { mount --bind "$1" "$2" && mounted+=("$2"); }

for m in dev/pts dev sys proc; do umount -l "$root/$m" 2>/dev/null || true; done
started=$SECONDS
if [ -n "${CONTARELLO_FRESH_REUSE:-}" ] && [ -x "$root/usr/bin/apt-get" ]; then
    # For a developer going round again: the root of the last run, packages and all.
    echo "== the root of the last run in $root, used again"
    rm -rf --one-file-system "$root/home/contarello"
else
    rm -rf --one-file-system "$root"
    mkdir -p "$root"
    echo "== a minimal Debian 12 root in $root, from $archive"
    debootstrap --variant=minbase bookworm "$root" "$archive" >"$root.debootstrap.log" 2>&1 || {
        tail -n 30 "$root.debootstrap.log" >&2
        exit 1
    }
fi

# apt inside looks where apt looks here: the same sources and the same settings.
rm -f "$root/etc/apt/sources.list"
for f in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
    [ -f "$f" ] && cp "$f" "$root$f"
done
for f in /etc/apt/apt.conf.d/*; do
    [ -f "$f" ] && [ ! -e "$root$f" ] && cp "$f" "$root$f"
done
for key in $(grep -ho 'Signed-By: *[^ ]*\|signed-by=[^] ]*' /etc/apt/sources.list.d/* /etc/apt/sources.list 2>/dev/null |
    sed 's/.*[:=] *//' | sort -u); do
    [ -f "$key" ] && [ ! -e "$root$key" ] && install -D -m 644 "$key" "$root$key"
done
cp /etc/resolv.conf "$root/etc/resolv.conf"

# The checkout as it stands, without what was built from it.
echo "== the checkout, copied to /home/contarello"
mkdir -p "$root/home/contarello"
git -C "$checkout" ls-files -z --cached --others --exclude-standard |
    tar -C "$checkout" --null -T - -cf - | tar -C "$root/home/contarello" -xf -

bind /proc "$root/proc"
bind /sys "$root/sys"
bind /dev "$root/dev"
bind /dev/pts "$root/dev/pts"

echo "== ${command[*]} in the fresh root ($((SECONDS - started)) s so far)"
chroot "$root" /usr/bin/env -i HOME=/root TERM="${TERM:-dumb}" CI="${CI:-}" \
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    bash -c 'cd /home/contarello && exec bash "$@"' bash "${command[@]}"
echo "== done in the fresh root in $((SECONDS - started)) s"
