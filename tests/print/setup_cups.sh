#!/usr/bin/env bash
# Makes sure CUPS runs with a PDF queue, GridPagesPDF, for the printing
# test. Prints the reason and exits non-zero where it cannot.
set -u
command -v lpadmin >/dev/null && command -v cupsd >/dev/null || { echo "CUPS is not installed"; exit 3; }
[ -x /usr/lib/cups/backend/cups-pdf ] || { echo "the cups-pdf backend is not installed"; exit 3; }
if ! lpstat -r 2>/dev/null | grep -q "is running"; then
  [ "$(id -u)" = 0 ] || { echo "the CUPS scheduler is not running and only root may start it"; exit 3; }
  cupsd || { echo "the CUPS scheduler does not start on this machine"; exit 3; }
  for _ in $(seq 1 50); do lpstat -r 2>/dev/null | grep -q "is running" && break; sleep 0.2; done
  lpstat -r 2>/dev/null | grep -q "is running" || { echo "the CUPS scheduler did not come up"; exit 3; }
fi
if ! lpstat -p GridPagesPDF >/dev/null 2>&1; then
  ppd=$(lpinfo -m 2>/dev/null | awk '/CUPS-PDF_opt.ppd/ {print $1; exit}')
  [ -n "$ppd" ] || ppd=$(lpinfo -m 2>/dev/null | awk '/CUPS-PDF/ {print $1; exit}')
  [ -n "$ppd" ] || { echo "no CUPS-PDF driver is listed"; exit 3; }
  lpadmin -p GridPagesPDF -E -v cups-pdf:/ -m "$ppd" -o PageSize=Letter 2>/dev/null ||
    { echo "the PDF queue cannot be made"; exit 3; }
fi
cupsenable GridPagesPDF 2>/dev/null
cupsaccept GridPagesPDF 2>/dev/null
# The test names the queue to the program (PRINTER), as a user's default;
# a machine with no default printer at all gets this one.
if ! lpstat -d 2>/dev/null | grep -q "system default destination"; then
  lpadmin -d GridPagesPDF 2>/dev/null || { echo "the PDF queue cannot be made the default"; exit 3; }
fi
# Where cups-pdf writes the files of this user.
out=$(awk '$1 == "Out" {print $2}' /etc/cups/cups-pdf.conf 2>/dev/null | tail -n 1)
out=${out:-\${HOME\}/PDF}
out=${out//\$\{HOME\}/$HOME}
out=${out//\$\{USER\}/$(id -un)}
echo "$out"
