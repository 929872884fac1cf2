#!/usr/bin/env bash
# Makes sure CUPS runs with the PDF queues of the printing tests:
# GridPagesPDF and GridPagesPDF2 (Letter) taking jobs and printing them,
# GridPagesHeld taking jobs but stopped, so that they wait to be looked at
# (and cancelled), and GridPagesRefuse refusing them. None of them is made
# the default printer,
# so other tests see the machine as it was. Running it again changes
# nothing. Prints where cups-pdf writes this user's files, or the reason
# and a non-zero status where it cannot.
set -u
command -v lpadmin >/dev/null && command -v cupsd >/dev/null || { echo "CUPS is not installed"; exit 3; }
[ -x /usr/lib/cups/backend/cups-pdf ] || { echo "the cups-pdf backend is not installed"; exit 3; }
if ! lpstat -r 2>/dev/null | grep -q "is running"; then
  [ "$(id -u)" = 0 ] || { echo "the CUPS scheduler is not running and only root may start it"; exit 3; }
  cupsd || { echo "the CUPS scheduler does not start on this machine"; exit 3; }
  for _ in $(seq 1 50); do lpstat -r 2>/dev/null | grep -q "is running" && break; sleep 0.2; done
  lpstat -r 2>/dev/null | grep -q "is running" || { echo "the CUPS scheduler did not come up"; exit 3; }
fi
# Only what is not already so is changed: each change is a round trip to
# the scheduler, and the tests run this once per test program.
printers=$(lpstat -p 2>/dev/null)
accepting=$(lpstat -a 2>/dev/null)
ppd=""
for queue in GridPagesPDF GridPagesPDF2 GridPagesHeld GridPagesRefuse; do
  if ! grep -q "^printer $queue " <<<"$printers"; then
    if [ -z "$ppd" ]; then
      ppd=$(lpinfo -m 2>/dev/null | awk '/CUPS-PDF_opt.ppd/ {print $1; exit}')
      [ -n "$ppd" ] || ppd=$(lpinfo -m 2>/dev/null | awk '/CUPS-PDF/ {print $1; exit}')
      [ -n "$ppd" ] || { echo "no CUPS-PDF driver is listed"; exit 3; }
    fi
    lpadmin -p "$queue" -E -v cups-pdf:/ -m "$ppd" -o PageSize=Letter 2>/dev/null ||
      { echo "the PDF queue $queue cannot be made"; exit 3; }
    printers="$printers"$'\n'"printer $queue is idle."
    accepting="$accepting"$'\n'"$queue accepting requests"
  fi
  stopped=no
  grep -q "^printer $queue disabled" <<<"$printers" && stopped=yes
  case "$queue:$stopped" in
    GridPagesHeld:no) cupsdisable -r "kept stopped for the printing test" "$queue" 2>/dev/null ;;
    GridPagesHeld:yes) ;;
    *:yes) cupsenable "$queue" 2>/dev/null ;;
  esac
  takes=no
  grep -q "^$queue accepting" <<<"$accepting" && takes=yes
  case "$queue:$takes" in
    GridPagesRefuse:yes) cupsreject -r "kept refusing for the printing test" "$queue" 2>/dev/null ;;
    GridPagesRefuse:no) ;;
    *:no) cupsaccept "$queue" 2>/dev/null ;;
  esac
done
# Where cups-pdf writes the files of this user.
out=$(awk '$1 == "Out" {print $2}' /etc/cups/cups-pdf.conf 2>/dev/null | tail -n 1)
out=${out:-\${HOME\}/PDF}
out=${out//\$\{HOME\}/$HOME}
out=${out//\$\{USER\}/$(id -un)}
echo "$out"
