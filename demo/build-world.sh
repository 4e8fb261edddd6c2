#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# build-world.sh DIR [HTTPS HTTP FTP]: makes the little world that `ravel-host --root DIR/root` runs
# on, afresh.
#
#   DIR/root/   a thin client: its image, service packs, package database, definition files, tools
#   DIR/repos/  four local repositories: images, service packs, packages, applications; and what
#               servers at the three URLs, if they are given, have to serve: https, http, ftp
#
# Needs dpkg, dpkg-deb, bsdtar and python3; works for root and for ordinary users and touches nothing else.
# shellcheck disable=SC1112  # the French texts have their apostrophes
set -euo pipefail
umask 022
export LC_ALL=C SOURCE_DATE_EPOCH=1767225600 PATH=$PATH:/usr/sbin:/sbin

if { [ $# -ne 1 ] && [ $# -ne 4 ]; } || [ -z "$1" ]; then
  echo "usage: ${0##*/} DIR [HTTPS HTTP FTP]" >&2
  exit 2
fi
servers=("${@:2}")
mkdir -p -- "$1"
world=$(cd -- "$1" && pwd -P)
demo=$(cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
root=$world/root
repos=$world/repos
marker=$world/.ravel-world
# The installed system, as the descriptors below see it.
base=6.1.2
model=TC-420

# Only what an earlier run made is removed.
if [ ! -e "$marker" ] && { [ -e "$root" ] || [ -e "$repos" ]; }; then
  echo "${0##*/}: '$world' holds a root or repos that is not a demo world" >&2
  exit 1
fi
: > "$marker"
rm -rf -- "$root" "$repos"
work=$(mktemp -d -- "$world/.build.XXXXXX")
trap 'rm -rf -- "$work"' EXIT

### Packages ####################################################################################

declare -A title_en title_de title_fr notes_en notes_de notes_fr extended

title_en[tc-audio]='Sound for local and remote sessions'
title_de[tc-audio]='Ton für lokale und entfernte Sitzungen'
title_fr[tc-audio]='Son pour les sessions locales et distantes'
notes_en[tc-audio]='<p>Sound no longer stops when a headset is unplugged.</p>'
notes_de[tc-audio]='<p>Der Ton bricht nicht mehr ab, wenn ein Headset abgezogen wird.</p>'
notes_fr[tc-audio]='<p>Le son ne s’arrête plus quand un casque est débranché.</p>'

title_en[tc-browser]='Web browser with kiosk mode'
title_de[tc-browser]='Webbrowser mit Kioskmodus'
title_fr[tc-browser]='Navigateur web avec mode kiosque'
notes_en[tc-browser]='<h3>What is new</h3><ul><li>Kiosk mode keeps its home page after a network break.</li><li>Certificates of the site’s own authority are taken from the system.</li><li>Pages with <b>many tables</b> scroll at twice the speed.</li></ul><h3>Before you install</h3><p>Close the browser on the device. Bookmarks and profiles are kept.</p>'
notes_de[tc-browser]='<h3>Neuerungen</h3><ul><li>Der Kioskmodus behält seine Startseite nach einer Netzunterbrechung.</li><li>Zertifikate der eigenen Zertifizierungsstelle kommen aus dem System.</li><li>Seiten mit <b>vielen Tabellen</b> rollen doppelt so schnell.</li></ul><h3>Vor der Installation</h3><p>Schließen Sie den Browser auf dem Gerät. Lesezeichen und Profile bleiben erhalten.</p>'
notes_fr[tc-browser]='<h3>Nouveautés</h3><ul><li>Le mode kiosque garde sa page d’accueil après une coupure du réseau.</li><li>Les certificats de l’autorité du site viennent du système.</li><li>Les pages avec <b>beaucoup de tableaux</b> défilent deux fois plus vite.</li></ul><h3>Avant l’installation</h3><p>Fermez le navigateur sur l’appareil. Les signets et profils sont conservés.</p>'

title_en[tc-display]='Screen layout and colour profiles'
title_de[tc-display]='Bildschirmanordnung und Farbprofile'
title_fr[tc-display]='Disposition des écrans et profils de couleur'

title_en[tc-network]='Wireless and 802.1X connections'
title_de[tc-network]='Drahtlose und 802.1X-Verbindungen'
title_fr[tc-network]='Connexions sans fil et 802.1X'
notes_en[tc-network]='<p>First release: joins wireless networks and wired ports that ask for a certificate.</p>'
notes_de[tc-network]='<p>Erste Ausgabe: verbindet mit Funknetzen und mit Anschlüssen, die ein Zertifikat verlangen.</p>'
notes_fr[tc-network]='<p>Première version : rejoint les réseaux sans fil et les prises qui demandent un certificat.</p>'

title_en[tc-printing]='Printing to local and network printers'
title_de[tc-printing]='Drucken auf lokalen und Netzwerkdruckern'
title_fr[tc-printing]='Impression locale et en réseau'
notes_en[tc-printing]='<p>Drivers for printers of the last two years.</p>'
notes_de[tc-printing]='<p>Treiber für Drucker der letzten zwei Jahre.</p>'
notes_fr[tc-printing]='<p>Pilotes pour les imprimantes des deux dernières années.</p>'

title_en[tc-scanner]='Scanning at the front desk'
title_de[tc-scanner]='Scannen am Empfang'
title_fr[tc-scanner]='Numérisation à l’accueil'

title_en[tc-session]='Session manager'
title_de[tc-session]='Sitzungsverwaltung'
title_fr[tc-session]='Gestionnaire de sessions'

title_en[tc-terminal]='Terminal emulation for host applications'
title_de[tc-terminal]='Terminalemulation für Großrechneranwendungen'
title_fr[tc-terminal]='Émulation de terminal pour applications centrales'
notes_en[tc-terminal]='<p>Keyboard maps can be chosen for each connection &amp; are kept over updates.</p>'
notes_de[tc-terminal]='<p>Tastaturbelegungen sind je Verbindung wählbar &amp; bleiben bei Updates erhalten.</p>'
notes_fr[tc-terminal]='<p>Les claviers se choisissent par connexion &amp; restent après les mises à jour.</p>'

title_en[tc-viewer]='Document viewer'
title_de[tc-viewer]='Dokumentbetrachter'
title_fr[tc-viewer]='Visionneuse de documents'

title_en[tc-vault]='Smart cards and keys'
title_de[tc-vault]='Chipkarten und Schlüssel'
title_fr[tc-vault]='Cartes à puce et clés'

# These describe themselves, in one language.
title_en[tc-planner]='Shift planner'
title_en[tc-label-printer]='Label printers of the warehouse'
title_en[tc-calculator]='Desk calculator'
extended[tc-calculator]=' Prints its paper roll to the default printer.
 .
 The keypad works with and without Num Lock.'
title_en[tc-clock]='Clock for several places'
extended[tc-clock]=' Shows the time at every branch office.'
title_en[tc-emulator]='Emulator for old applications'

# make_package NAME VERSION KIB DIRECTORY [ARCHITECTURE [COMPRESSION]]: a real package with a payload
# of KIB kibibytes. It is stored unless said otherwise, so that sizes are what they seem.
make_package()
{
  local name=$1 version=$2 kib=$3 architecture=${5:-all} tree=$work/tree
  rm -rf "$tree"
  mkdir -p "$tree/DEBIAN" "$tree/usr/lib/$name" "$tree/usr/share/doc/$name"
  head -c $((kib * 1024)) /dev/zero > "$tree/usr/lib/$name/payload"
  echo "$name $version" > "$tree/usr/share/doc/$name/version"
  cat > "$tree/DEBIAN/control" <<CONTROL
Package: $name
Version: $version
Architecture: $architecture
Maintainer: Corvane <packages@corvane.example>
Installed-Size: $kib
Section: misc
Priority: optional
Description: ${title_en[$name]}
CONTROL
  [ -z "${extended[$name]:-}" ] || printf '%s\n' "${extended[$name]}" >> "$tree/DEBIAN/control"
  # As everywhere, the file's name has the version without its epoch.
  dpkg-deb --root-owner-group "-Z${6:-none}" --build "$tree" \
    "$4/${name}_${version#*:}_$architecture.deb" >/dev/null
}

# texts TAG ENGLISH GERMAN FRENCH; nothing when there is no text
texts()
{
  [ -n "$2" ] || return 0
  printf '  <%s xml:lang="en">%s</%s>\n' "$1" "$2" "$1"
  printf '  <%s xml:lang="de">%s</%s>\n' "$1" "$3" "$1"
  printf '  <%s xml:lang="fr">%s</%s>\n' "$1" "$4" "$1"
}

# elements TAG VALUE...
elements()
{
  local tag=$1 value
  shift
  for value in "$@"; do
    printf '  <%s>%s</%s>\n' "$tag" "$value" "$tag"
  done
}

# offer_package NAME VERSION KIB BASE_RELEASES ARCHITECTURES CLIENTS [REPOSITORY]: package and
# descriptor.
offer_package()
{
  local name=$1 version=$2 kib=$3 repository=$repos/${7:-packages} size
  local -a releases architectures clients
  read -ra releases <<<"$4"
  read -ra architectures <<<"$5"
  read -ra clients <<<"$6"
  make_package "$name" "$version" "$kib" "$repository"
  size=$(stat -c %s "$repository/${name}_${version}_all.deb")
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<update_data>'
    elements name "$name"
    texts title "${title_en[$name]}" "${title_de[$name]}" "${title_fr[$name]}"
    texts notes "${notes_en[$name]:-}" "${notes_de[$name]:-}" "${notes_fr[$name]:-}"
    elements version "$version"
    elements base_releases "${releases[@]}"
    elements size "$size"
    elements unpacked_size "$size"
    elements installed_size $((kib * 1024))
    elements architecture "${architectures[@]}"
    elements thin_client "${clients[@]}"
    echo '</update_data>'
  } > "$repository/${name}_${version}_all.xml"
}

mkdir -p "$repos"/{images,service-packs,packages,applications}
# Offered and newer than what is installed, or not installed at all.
offer_package tc-audio    1.0-1  640 '6\.1.*' 'armel' 'TC-420 TC-440'
offer_package tc-browser  4.3-1 2900 '6\.1.*' 'armel' 'TC-420 TC-440'
offer_package tc-network  1.1-1  410 '6\.1\.[2-9]' 'armel' 'all'
offer_package tc-terminal 2.1-1  880 'all' 'all' 'all'
# Offered, and installed already.
offer_package tc-printing 1.6-2  520 '6\.1.*' 'armel' 'all'
# Not for this system: another base release, another architecture, another model.
offer_package tc-session  3.1-1  300 '7\.0.*' 'armel' 'all'
offer_package tc-display  1.3-1  280 '6\.1.*' 'i386' 'all'
offer_package tc-scanner  0.5-1  150 '6\.1.*' 'armel' 'TC-900'
# A descriptor that names no model fits none.
offer_package tc-viewer   2.0-1  200 '6\.1.*' 'armel' ''
# An archive without a descriptor is not offered.
make_package tc-viewer 2.2-1 200 "$repos/packages"

### Applications ################################################################################

# Packages that are their own descriptors, compressed as the distribution's are.
make_package tc-calculator 2.1-1 90 "$repos/applications" all xz
make_package tc-clock 1:1.0-2 40 "$repos/applications" all zstd
make_package tc-emulator 0.9-1 60 "$repos/applications" i386 gzip

### What servers serve ##########################################################################

mkdir "$repos"/{https,http,ftp}
offer_package tc-vault 1.4-1 700 '6\.1.*' 'armel' 'all' https
make_package tc-planner 3.2-1 450 "$repos/http" all xz
make_package tc-label-printer 5.0-2 330 "$repos/ftp" all xz

### Service packs ###############################################################################

# make_service_pack NAME CONTENTS...: what the archive of a service pack holds, below $work/pack.
make_service_pack()
{
  local name=$1 tree=$work/pack
  shift
  rm -rf "$tree"
  mkdir -p "$tree/$name/usr/share/service-packs"
  printf '%s\n' "$@" > "$tree/$name/usr/share/service-packs/$name"
  head -c 200000 /dev/zero > "$tree/$name/usr/share/service-packs/$name.data"
}

# describe_service_pack NAME VERSION BASE_RELEASE CONTENTS...: without sizes.
describe_service_pack()
{
  local name=$1 version=$2 release=$3
  shift 3
  elements name "$name"
  texts title "Service pack $version for release $release" \
    "Service Pack $version für Ausgabe $release" \
    "Service pack $version pour la version $release"
  texts notes '<p>All corrections since the release, in one step.</p>' \
    '<p>Alle Korrekturen seit der Ausgabe, in einem Schritt.</p>' \
    '<p>Toutes les corrections depuis la version, en une étape.</p>'
  elements version "$version"
  elements base_releases "${release//./\\.}"
  elements package "$@"
  elements architecture armel
  elements thin_client all
}

# offer_service_pack NAME VERSION BASE_RELEASE CONTENTS...: archive and descriptor.
offer_service_pack()
{
  local name=$1 archive=$repos/service-packs/$1.xar unpacked
  make_service_pack "$name" "${@:4}"
  bsdtar --format=xar -cf "$archive" -C "$work/pack" "$name"
  unpacked=$(du -sb "$work/pack/$name" | cut -f1)
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<update_data>'
    describe_service_pack "$@"
    elements size "$(stat -c %s "$archive")"
    elements unpacked_size "$unpacked"
    elements installed_size "$unpacked"
    echo '</update_data>'
  } > "$repos/service-packs/$name.xml"
}

# offer_self_describing_pack NAME VERSION BASE_RELEASE CONTENTS...: an archive that is its own
# descriptor.
offer_self_describing_pack()
{
  local name=$1 unpacked
  make_service_pack "$name" "${@:4}"
  unpacked=$(du -sb "$work/pack/$name" | cut -f1)
  {
    echo '<sp-attrs>'
    elements unpacked_size "$unpacked"
    elements installed_size "$unpacked"
    echo '</sp-attrs>'
  } > "$work/sp-attrs.xml"
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<service-pack-description>'
    describe_service_pack "$@"
    echo '</service-pack-description>'
  } > "$work/description.xml"
  "$demo/make-xar.py" "$repos/service-packs/$name.sp.xar" "$work/pack/$name" \
    "$work/sp-attrs.xml" "$work/description.xml"
}

offer_service_pack SP-6.1.2-1 1 6.1.2 'tc-session 3.0-1' 'tc-display 1.2-1'
offer_service_pack SP-6.1.2-2 2 6.1.2 'tc-browser 4.2-1' 'tc-printing 1.6-2' 'tc-session 3.0-2'
offer_service_pack SP-6.1.2-3 3 6.1.2 'tc-browser 4.3-1' 'tc-terminal 2.1-1'
offer_service_pack SP-6.0.9-7 7 6.0.9 'tc-session 2.9-4'
offer_self_describing_pack SP-6.1.2-4 4 6.1.2 'tc-terminal 2.1-1' 'tc-browser 4.3-1' 'tc-audio 1.0-1'
offer_self_describing_pack SP-7.0.0-1 1 7.0.0 'tc-session 3.1-1'

### Images ######################################################################################

# offer_image VERSION KIB CLIENT
offer_image()
{
  local version=$1 kib=$2 client=$3 name=tc-system-$1 archive
  archive=$repos/images/$name.dd.gz
  head -c $((kib * 1024)) /dev/zero | gzip -n -9 > "$archive"
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<update_data>'
    elements name tc-system
    texts title "Complete system, release $version" "Vollständiges System, Ausgabe $version" \
      "Système complet, version $version"
    texts notes '<p>Replaces everything on the device; settings are kept.</p>' \
      '<p>Ersetzt alles auf dem Gerät; die Einstellungen bleiben erhalten.</p>' \
      '<p>Remplace tout sur l’appareil ; les réglages sont conservés.</p>'
    elements version "$version"
    elements size "$(stat -c %s "$archive")"
    elements unpacked_size $((kib * 1024))
    elements architecture armel
    elements thin_client "$client"
    echo '</update_data>'
  } > "$repos/images/$name.xml"
}

offer_image 6.1.2 2048 TC-420
offer_image 6.1.10 2304 TC-420
offer_image 6.2.0 2560 all
offer_image 7.0.0 4096 TC-900

### The thin client #############################################################################

mkdir -p "$root"/etc/{service-packs,cvtc-ravel/repositories} "$root"/usr/{bin,sbin} \
  "$root"/var/log "$root"/tmp "$root"/var/lib/dpkg/{info,updates,triggers}
: > "$root/var/lib/dpkg/status"
: > "$root/var/lib/dpkg/available"
printf '%s\r\n' "$base" > "$root/etc/imageid"
printf 'SP-6.1.2-1\n' > "$root/etc/service-packs/base"
printf 'SP-6.1.2-1\nSP-6.0.9-7\n' > "$root/etc/service-packs/history"

cat > "$root/usr/bin/cvtc-hwsw-id" <<TOOL
#!/bin/sh
[ "\$1" = --hw ] && echo $model
TOOL
cat > "$root/usr/sbin/xarinstall" <<'TOOL'
#!/bin/sh
# xarinstall --extrdir=NAME: installs the unpacked service pack NAME of the current directory.
set -e
root=$(cd "$(dirname "$0")/../.." && pwd)
name=${1#--extrdir=}
if [ -z "$name" ] || [ ! -d "$name" ]; then
  echo "xarinstall: no unpacked service pack" >&2
  exit 1
fi
echo "Installing service pack $name"
cp -R "./$name/." "$root/"
echo "$name" >> "$root/etc/service-packs/installed"
TOOL
cat > "$root/usr/sbin/cvtc-ts-reboot" <<'TOOL'
#!/bin/sh
# Where the device would restart into the deployment of an image, this world takes a note.
root=$(cd "$(dirname "$0")/../.." && pwd)
echo "Restarting" | tee -a "$root/var/log/restarts"
TOOL
chmod 0755 "$root"/usr/bin/cvtc-hwsw-id "$root"/usr/sbin/{xarinstall,cvtc-ts-reboot}

# The package tool's own log belongs into this system too, not into the developer's. No power cut
# has to be survived here: waiting for the disk is most of an installation's time.
printf 'log %s\nforce-unsafe-io\n' "$root/var/log/dpkg.log" > "$root/.dpkg.cfg"
installed=$work/installed
mkdir "$installed"
make_package tc-audio    0.9-1  600 "$installed"
make_package tc-browser  4.2-1 2700 "$installed"
make_package tc-calculator 2.0-1 90 "$installed"
make_package tc-display  1.2-1  280 "$installed"
make_package tc-printing 1.6-2  520 "$installed"
make_package tc-session  3.0-1  290 "$installed"
make_package tc-terminal 2.0-3  850 "$installed"
HOME=$root DPKG_ROOT=$root DPKG_FORCE=not-root,script-chrootless,bad-path \
  dpkg --install "$installed"/*.deb >/dev/null

# url DIRECTORY: its file URL.
url()
{
  local path=$1 encoded='' i c
  for ((i = 0; i < ${#path}; ++i)); do
    c=${path:i:1}
    case $c in
      [A-Za-z0-9/._~-]) encoded+=$c ;;
      *) printf -v c '%%%02X' "'$c"; encoded+=%${c: -2} ;;
    esac
  done
  echo "file://$encoded"
}

# define FILE KEY SELECTOR ICON LOCATION FILTER_SPS FILTER..., the texts on standard input. The
# location is a URL or a directory of this world. A filter is a pattern for archives and one for descriptors; an archive that describes itself has no other.
define()
{
  local archives descriptors location=$5
  [[ $location == *://* ]] || location=$(url "$repos/$location")
  {
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<repository_list>'
    echo '<repository>'
    cat
    elements settings_key "$2"
    elements default_uri "$location"
    elements selector_type "$3"
    elements icon "$4"
    elements filter_sps "$6"
    while read -r archives descriptors; do
      echo '  <filter_pattern>'
      elements archive_pattern "$archives"
      [ -z "$descriptors" ] || elements descriptor_pattern "$descriptors"
      echo '  </filter_pattern>'
    done < <(printf '%s\n' "${@:7}")
    echo '</repository>'
    echo '</repository_list>'
  } > "$root/etc/cvtc-ravel/repositories/$1"
}

{
  texts title 'Software images' 'Software-Abbilder' 'Images logicielles'
  texts description \
    'An image replaces the complete software of the device. The newest one stands first.' \
    'Ein Abbild ersetzt die gesamte Software des Geräts. Das neueste steht oben.' \
    'Une image remplace tout le logiciel de l’appareil. La plus récente est en tête.'
  texts uri_description 'Image location' 'Ort der Abbilder' 'Emplacement des images'
} | define 10-images.xml image_uri PickOne ImageRepository images no '\.dd\.gz$ \.xml$'
{
  texts title 'Service packs' 'Service Packs' 'Service packs'
  texts description \
    'A service pack bundles the corrections of one release. Packs that are installed are not listed.' \
    'Ein Service Pack bündelt die Korrekturen einer Ausgabe. Installierte sind nicht aufgeführt.' \
    'Un service pack réunit les corrections d’une version. Ceux qui sont installés ne figurent pas.'
  texts uri_description 'Service pack location' 'Ort der Service Packs' 'Emplacement des service packs'
} | define 20-service-packs.xml sp_uri PickAny SPRepository service-packs yes \
  '\.xar$ \.xml$' '\.sp\.xar$'
{
  texts title 'Packages' 'Pakete' 'Paquets'
  texts description \
    'Packages update single programs. Those that are newer than what is installed are chosen already.' \
    'Pakete aktualisieren einzelne Programme. Neuere als die installierten sind bereits ausgewählt.' \
    'Les paquets mettent à jour un seul programme. Les plus récents sont déjà choisis.'
  texts uri_description 'Package location' 'Ort der Pakete' 'Emplacement des paquets'
} | define 30-packages.xml package_uri PickAny PackageRepository packages no '\.deb$ \.xml$'
{
  texts title 'Applications' 'Anwendungen' 'Applications'
  texts description \
    'Applications are plain Debian packages, which describe themselves.' \
    'Anwendungen sind einfache Debian-Pakete, die sich selbst beschreiben.' \
    'Les applications sont de simples paquets Debian, qui se décrivent eux-mêmes.'
  texts uri_description 'Application location' 'Ort der Anwendungen' 'Emplacement des applications'
} | define 40-applications.xml application_uri PickAny PackageRepository applications no '\.deb$'

if [ ${#servers[@]} -gt 0 ]; then
  {
    texts title 'Security' 'Sicherheit' 'Sécurité'
    texts description \
      'Security tools come from a server with a certificate of its own, which has to be accepted.' \
      'Sicherheitsprogramme kommen von einem Server, dessen Zertifikat anzunehmen ist.' \
      'Les outils de sécurité viennent d’un serveur dont il faut accepter le certificat.'
    texts uri_description 'Security location' 'Ort der Sicherheit' 'Emplacement de la sécurité'
  } | define 50-security.xml security_uri PickAny PackageRepository "${servers[0]}" no '\.deb$ \.xml$'
  {
    texts title 'Site software' 'Software des Standorts' 'Logiciels du site'
    texts description \
      'The software of this site is on a web server that asks for a login: demo, demo.' \
      'Die Software dieses Standorts liegt auf einem Webserver mit Anmeldung: demo, demo.' \
      'Les logiciels de ce site sont sur un serveur web qui demande une connexion : demo, demo.'
    texts uri_description 'Site location' 'Ort des Standorts' 'Emplacement du site'
  } | define 60-site.xml site_uri PickAny PackageRepository "${servers[1]}" no '\.deb$'
  {
    texts title 'Drivers' 'Treiber' 'Pilotes'
    texts description \
      'Drivers are on an FTP server.' \
      'Treiber liegen auf einem FTP-Server.' \
      'Les pilotes sont sur un serveur FTP.'
    texts uri_description 'Driver location' 'Ort der Treiber' 'Emplacement des pilotes'
  } | define 70-drivers.xml driver_uri PickAny PackageRepository "${servers[2]}" no '\.deb$'
fi

echo "Demo world: $world"
