#!/usr/bin/env bash
# Drives vowren-cli the way a script would and checks what it prints and its exit status.
set -u
cli="$1"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export VOWREN_HOME="$home"
passed=0
failed=0

check() { # name, expected status, expected text (grep -E), command...
    local name="$1" status="$2" pattern="$3"
    shift 3
    local out rc
    out=$("$@" 2>&1)
    rc=$?
    if [ "$rc" -eq "$status" ] && grep -qE -- "$pattern" <<<"$out"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL: $name (status $rc, wanted $status; pattern '$pattern')"
        echo "$out" | head -20
    fi
}

check "version" 0 '^vowren-cli [0-9]+\.[0-9]+\.[0-9]+$' "$cli" --version
check "help lists info" 0 'info' "$cli" --help
check "no command" 2 'no command given' "$cli"
check "unknown command" 2 'unknown command "frobnicate"' "$cli" frobnicate
check "info rejects arguments" 2 'takes no arguments' "$cli" info extra
check "info names the data root" 0 "Data root: +$home" "$cli" info
check "info names the database" 0 "Database: +$home/Database/Vowren.quilldata" "$cli" info
check "info names the settings file" 0 "Settings file: +$home/Vowren.ini" "$cli" info

mkdir -p "$home/Database"
printf '/srv/shared/Wedding.quilldata\r\n' >"$home/Database/Vowren.connect"
check "info follows the connect file" 0 "Database: +/srv/shared/Wedding.quilldata$" "$cli" info

rm -f "$home/Database/Vowren.connect"
check "init creates the database" 0 "Database ready: $home/Database/Vowren.quilldata" "$cli" init
check "init a second time" 0 "Database ready" "$cli" init
check "sql prints CSV" 0 '^"CONTACT_ID","ROLE_ID"' "$cli" sql "SELECT CONTACT_ID, ROLE_ID FROM CONTACT ORDER BY 1"
check "sql doubles inner quotes" 0 '^"say ""hi"", O.K."' "$cli" sql "SELECT 'say \"hi\", O.K.' AS x"
check "sql refuses a delete" 1 'only a statement that reads' "$cli" sql "DELETE FROM CONTACT"
check "the delete did not run" 0 '^"2"' "$cli" sql "SELECT COUNT(*) FROM CONTACT"
check "sql refuses two statements" 1 'one statement' "$cli" sql "SELECT 1; DROP TABLE CONTACT"
check "sql without statement" 2 'takes one statement' "$cli" sql
check "sql with a typo" 1 'syntax error' "$cli" sql "SELEC 1"
check "parse-name" 0 '"first":"Ann".*"title":"Dr\."' "$cli" parse-name "Dr. Ann Lee"
check "parse-name without titles" 0 '"first":"Dr\."' "$cli" parse-name --no-title "Dr. Ann Lee"
check "parse-name keeps accents" 0 '"last":"Łukasik"' "$cli" parse-name "Zoë Łukasik"
check "parse-address CR LF" 0 '"city":"Springfield".*"zip":"62704"' "$cli" parse-address $'12 Maple Ave\r\nSpringfield, IL 62704'
check "parse-address LF" 0 '"state":"IL"' "$cli" parse-address $'12 Maple Ave\nSpringfield, IL 62704'
check "parse-name needs a name" 2 'takes one name' "$cli" parse-name

check "report needs a section" 2 'give one of SECTION, --list or --all' "$cli" report
check "report of no section" 2 'there is no section "Seating"' "$cli" report Seating
check "report with a bad format" 2 '--format takes rtf, csv, pdf, both' "$cli" report Contacts --format odt
check "report with a bad filter" 2 '--filter takes the number' "$cli" report Contacts --filter x
check "report of a missing row" 2 'no such filter row' "$cli" report Contacts --filter 77
check "report custom filter row" 2 'takes its boxes from --custom' "$cli" report Contacts --filter 99999
check "report custom box unknown" 2 'has no box "Martian"' "$cli" report Contacts --custom "A list+Martian"
check "report custom on tables" 2 'only Contacts, Invitations, RSVPs and Attendees' "$cli" report Tables --custom "A list"
check "report list" 0 '^  All Contacts \[0\]: 2' "$cli" report --list
check "report list by section key" 0 '^Wedding Statistics \[14\]' "$cli" report --list
check "report list offers the custom reports" 0 'Custom SQL \[0\]: --$' "$cli" report --list
check "report writes RTF" 0 "^$home/Reports/01_Contacts_[0-9_-]+\.rtf$" "$cli" report Contacts
check "report writes CSV by section key" 0 "^$home/Reports/04_Meals_.*\.csv$" "$cli" report 4 --filter 98 --format csv
check "report of statistics in portrait A4" 0 '12_Wedding_Statistics_.*\.rtf$' "$cli" report "wedding statistics" --portrait --a4
check "report with a custom filter" 0 '01_Contacts_.*\.csv$' "$cli" report Contacts --custom "Friend of Bride+A list" --format csv
check "report Custom needs a query" 2 'Custom takes one of --sql' "$cli" report Custom --filter 0
check "report needing the screen" 2 'needs the report screen' "$cli" report Tables --filter 3
check "report all in both dialects" 0 '04_Tentcard_.*\.csv' "$cli" report --all
check "report writes PDF" 0 "^$home/Reports/01_Contacts_[0-9_-]+\.pdf$" "$cli" report Contacts --format pdf --portrait
check "report all formats of one" 0 '12_Wedding_Statistics_.*\.pdf$' "$cli" report "wedding statistics" --format all
check "report all as PDF" 0 '04_Tentcard_.*\.pdf' "$cli" report --all --format pdf
check "report files are PDF" 0 '^%PDF-' head -c 5 "$(ls "$home"/Reports/01_Contacts_*.pdf | head -1)"
if command -v pdftotext >/dev/null; then
    check "report PDF shows its title" 0 'Contacts' pdftotext "$(ls "$home"/Reports/01_Contacts_*.pdf | head -1)" -
fi
check "report files are RTF" 0 '^\{\\rtf1' head -c 6 "$(ls "$home"/Reports/12_Wedding_Statistics_*.rtf | head -1)"
if command -v python3 >/dev/null; then
    check "every CSV reads back with Python's strict csv reader" 0 '^[0-9]+ files read$' python3 -c '
import csv, glob, sys
files = sorted(glob.glob(sys.argv[1] + "/Reports/*.csv"))
for name in files:
    raw = open(name, "rb").read()
    assert raw.startswith(b"\xef\xbb\xbf"), name + ": no byte-order mark"
    rows = list(csv.reader(raw.decode("utf-8-sig").splitlines(keepends=True), strict=True))
    assert rows and all(isinstance(r, list) for r in rows), name
print(len(files), "files read")' "$home"
fi

# Backups: a copy is written and listed, and a restore puts it back into the live database.
check "backup writes a copy" 0 "^$home/Database/Backups/Vowren_[0-9_-]+\.quilldata$" "$cli" backup
copy=$(ls -t "$home"/Database/Backups/Vowren_*.quilldata | head -1)
check "the copy is the owner's only" 0 '^600$' stat -c '%a' "$copy"
check "backup --list names the copy" 0 "^\"$copy\",\"[0-9: -]+\",\"[0-9]+\",\"2\",\"0\"" "$cli" backup --list
check "backup rejects other arguments" 2 'takes no arguments but --list' "$cli" backup --now
if command -v python3 >/dev/null; then
    py_sql() { python3 -c 'import sqlite3, sys
c = sqlite3.connect(sys.argv[1])
rows = c.execute(sys.argv[2]).fetchall()
c.commit()
print("\n".join("|".join(str(v) for v in r) for r in rows))' "$@"; }
    py_sql "$home/Database/Vowren.quilldata" "UPDATE CONTACT SET FIRST_NM = 'Changed' WHERE CONTACT_ID = 1" >/dev/null
    check "restore puts the copy back" 0 "^Restored $copy; the database as it was before is at $home/Database/Backups/Vowren_before-restore_" "$cli" restore "$copy"
    check "the restored database is whole" 0 '^ok$' py_sql "$home/Database/Vowren.quilldata" "PRAGMA integrity_check"
    check "the change is undone" 0 '^None$' py_sql "$home/Database/Vowren.quilldata" "SELECT FIRST_NM FROM CONTACT WHERE CONTACT_ID = 1"
    printf 'Dear guests,\nthis is a letter, not a database.\n%.0s' $(seq 100) >"$home/letter.quilldata"
    check "restore refuses a letter" 1 'damaged or is not a Vowren database' "$cli" restore "$home/letter.quilldata"
    py_sql "$home/Database/Vowren.quilldata" "UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID = 1" >/dev/null
    check "sql reads without writing" 0 '^"N"' "$cli" sql "SELECT ATTENDING_FG FROM CONTACT WHERE CONTACT_ID = 1"
    check "sql refuses a pragma" 1 'not run' "$cli" sql "PRAGMA user_version=99"

    # A demo wedding killed at any moment leaves a whole file with all of the demo or none of it, and
    # the next start takes over the dead program's lock.
    for delay in 0.3 1.5 4; do
        k="$home/killed-$delay"
        mkdir -p "$k"
        VOWREN_HOME="$k" "$cli" init >/dev/null
        VOWREN_HOME="$k" "$cli" demo --guests 10000 >/dev/null 2>&1 &
        demo=$!
        sleep "$delay"
        kill -9 "$demo" 2>/dev/null
        wait "$demo" 2>/dev/null
        check "killed after ${delay}s: the file is whole" 0 '^ok$' py_sql "$k/Database/Vowren.quilldata" "PRAGMA integrity_check"
        check "killed after ${delay}s: every link holds" 0 '^$' py_sql "$k/Database/Vowren.quilldata" "PRAGMA foreign_key_check"
        check "killed after ${delay}s: all or nothing" 0 '^(2|10002)$' py_sql "$k/Database/Vowren.quilldata" "SELECT COUNT(*) FROM CONTACT"
        check "killed after ${delay}s: the next start goes on" 0 'Database ready' env VOWREN_HOME="$k" "$cli" init
    done

    # While one command changes the database, another that would change it is told the file is in use;
    # one that only reads still runs.
    busy="$home/busy"
    mkdir -p "$busy"
    VOWREN_HOME="$busy" "$cli" init >/dev/null
    VOWREN_HOME="$busy" "$cli" demo --guests 30000 >/dev/null 2>&1 &
    demo=$!
    for _ in $(seq 50); do [ -e "$busy/Database/Vowren.quilldata.lock" ] && break; sleep 0.1; done
    check "a second writer is told the file is in use" 1 'is in use by vowren-cli, process [0-9]+' env VOWREN_HOME="$busy" "$cli" init
    check "a reader still runs" 0 '^"2"' env VOWREN_HOME="$busy" "$cli" sql "SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID <= 2"
    kill -9 "$demo" 2>/dev/null
    wait "$demo" 2>/dev/null
fi

# Deletes by key: all or nothing, refused with the reason.
value() { "$cli" sql "$1" | tail -1 | tr -d '"\r'; }
"$cli" demo --guests 150 >/dev/null
gifted=$(value "SELECT CONTACT_ID FROM GIFT WHERE CONTACT_ID IS NOT NULL LIMIT 1")
givers="SELECT CONTACT_ID FROM GIFT WHERE CONTACT_ID IS NOT NULL"
host=$(value "SELECT GUEST_OF_ID FROM CONTACT WHERE GUEST_OF_ID NOT IN ($givers) AND CONTACT_ID NOT IN ($givers) LIMIT 1")
guest=$(value "SELECT CONTACT_ID FROM CONTACT WHERE GUEST_OF_ID = $host")
contacts=$(value "SELECT COUNT(*) FROM CONTACT")
check "delete keeps the bride" 1 'the bride and the groom \(1\) cannot be deleted\. Nothing was deleted\.$' "$cli" delete contacts "$host" 1
check "delete of an unknown key" 1 'there is no contact with the key 99999\. Nothing was deleted' "$cli" delete contacts "$host" 99999
check "delete of a person with a gift" 1 'Gift records exist for this contact\. Nothing was deleted' "$cli" delete contacts "$host" "$gifted"
check "refused deletes changed nothing" 0 "^\"$contacts\"" "$cli" sql "SELECT COUNT(*) FROM CONTACT"
check "delete needs keys" 2 'usage: delete contacts\|invitations KEY' "$cli" delete contacts
check "delete of tables" 2 'usage: delete' "$cli" delete tables 3
check "delete a guest and their host" 0 "^Deleted 2 contacts: $guest $host$" "$cli" delete contacts "$guest" "$host"
check "delete a host takes their guest" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID IN ($host, $guest)"
sent=$(value "SELECT INVITE_ID FROM INVITE WHERE INVITE_SENT_FG = 'Y' LIMIT 1")
unsent=$(value "SELECT INVITE_ID FROM INVITE WHERE INVITE_SENT_FG = 'N' LIMIT 1")
check "delete keeps a sent invitation" 1 "invitation $sent has been sent" "$cli" delete invitations "$unsent" "$sent"
check "delete an unsent invitation" 0 "^Deleted 1 invitations: $unsent$" "$cli" delete invitations "$unsent"

# A name a spreadsheet would run as a formula is written as text; Python's strict reader reads it back.
if command -v python3 >/dev/null; then
    python3 -c 'import sqlite3, sys
db = sqlite3.connect(sys.argv[1])
db.execute("INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, GENDER_FG, CHILD_FG, OUT_OF_TOWNER_FG) "
           "VALUES (90001, \"-2+3\", \"=HYPERLINK(\"\"http://x\"\")\", \"M\", \"N\", \"N\")")
db.commit()' "$home/Database/Vowren.quilldata"
    csvfile=$("$cli" report Contacts --format csv)
    check "a formula in a CSV cell shows as text" 0 '^ok$' python3 -c '
import csv, sys
rows = list(csv.reader(open(sys.argv[1], encoding="utf-8-sig", newline=""), strict=True))
names = [cell for row in rows for cell in row if "HYPERLINK" in cell]
assert names == ["'"'"'=HYPERLINK(\"http://x\")"], names
print("ok")' "$csvfile"
fi
check "relabel with a bad option" 2 'takes --formal, --personal or nothing' "$cli" relabel --fancy
"$cli" demo --guests 12 --seed 3 >/dev/null
check "relabel formal keeps the choice" 0 '^Relabelled [1-9][0-9]* invitations \(formal\)$' "$cli" relabel --formal
check "formal inner envelopes" 0 '^"[1-9]' "$cli" sql "SELECT COUNT(*) FROM INVITE WHERE AUTO_UPDATE_FG = 'Y' AND INNER_ENVELOPE_TX LIKE 'M%'"
check "relabel by the kept etiquette" 0 '\(formal\)$' "$cli" relabel
check "relabel personal" 0 '\(personal\)$' "$cli" relabel --personal
check "personal inner envelopes" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM INVITE WHERE AUTO_UPDATE_FG = 'Y' AND INNER_ENVELOPE_TX LIKE 'Mr.%'"

seated_at() { "$cli" sql "SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID = (SELECT DINING_TABLE_ID FROM DINING_TABLE WHERE DINING_TABLE_NB = $1)" | tail -1; }
check "tables with an unknown action" 2 'tell --add or --swap, or nothing to list them' "$cli" tables --frob
check "tables --add needs a count" 2 '--add takes a count from 1 to 500' "$cli" tables --add 0
check "tables --add with a bad shape" 2 '--shape takes 1 \(round\)' "$cli" tables --add 2 --shape 5
check "tables --swap of a missing table" 1 'there is no table #9999. Nothing was changed.' "$cli" tables --swap 1 9999
first=$(seated_at 1)
second=$(seated_at 2)
check "tables --swap" 0 '^Swapped the guests and labels of tables #1 and #2$' "$cli" tables --swap 1 2
check "the guests of table 1 sit at table 2" 0 "^$first\$" seated_at 2
check "the guests of table 2 sit at table 1" 0 "^$second\$" seated_at 1
check "tables --add 13" 0 '^Added 13 tables: #[0-9]+, ' "$cli" tables --add 13 --seats 10 --shape 3
check "the thirteenth starts the second row" 0 '^"0","480","10","3"' "$cli" sql "SELECT POS_X, POS_Y, SEATS_NB, DINING_TABLE_TYPE_ID FROM DINING_TABLE ORDER BY DINING_TABLE_ID DESC LIMIT 1"
check "tentcards needs --refresh" 2 'usage: tentcards --refresh' "$cli" tentcards
check "tentcards --refresh" 0 '^Refreshed [1-9][0-9]* tentcards \((formal|personal)\)$' "$cli" tentcards --refresh
check "a card for every seated invitation" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID IS NOT NULL AND DINING_TABLE_ID NOT IN (SELECT DINING_TABLE_ID FROM TENTCARD)"

# Seating: all of the guests or none, in the floor plan's words.
"$cli" demo --guests 40 --seed 5 >/dev/null
read -ra ids <<<"$("$cli" sql "SELECT CONTACT_ID FROM CONTACT ORDER BY 1" | tail -n +2 | tr -d '"\r' | tr '\n' ' ')"
check "unseat everybody" 0 "^Unseated: ${ids[0]} " "$cli" unseat "${ids[@]}"
check "tables after unseating" 0 '^Table #1: 0 of 12 seats taken$' "$cli" tables
check "seat eleven" 0 "^Seated at table #1: ${ids[0]} " "$cli" seat --table 1 "${ids[@]:0:11}"
check "seat two at one free seat" 1 'seat: There is only 1 seat available\.$' "$cli" seat --table 1 "${ids[@]:11:2}"
check "nobody of the two was seated" 0 '^Table #1: 11 of 12 seats taken$' "$cli" tables
check "seat the last one" 0 "^Seated at table #1: ${ids[11]}$" "$cli" seat --table 1 "${ids[11]}"
check "seat at a full table" 1 'Table #1 is full\. All 12 seats are taken\.$' "$cli" seat --table 1 "${ids[12]}"
check "seat an unknown contact" 1 'no contact with the key 99999\. Nothing was changed' "$cli" seat --table 2 "${ids[12]}" 99999
check "seat at an unknown table" 1 'there is no table #77' "$cli" seat --table 77 "${ids[12]}"
check "seat without a table" 2 'usage: seat --table NUMBER ID' "$cli" seat "${ids[12]}"
check "unseat needs keys" 2 'usage: unseat ID' "$cli" unseat
check "unseat one" 0 "^Unseated: ${ids[0]}$" "$cli" unseat "${ids[0]}"
check "tables after unseating one" 0 '^Table #1: 11 of 12 seats taken$' "$cli" tables

# Seating everyone by the rules: JSON out, the chart written only without --dry-run.
before=$("$cli" seat --score)
check "seat --score before" 0 '^\{"friend_pairs":[0-9]+,"hard_violations":0,.*"score":0,' echo "$before"
check "seat --dry-run" 0 '^\{.*"hard_violations":0,.*"seated":[0-9]+,.*"unseated":[0-9]+,"written":false\}$' "$cli" seat --dry-run --seconds 2 --seed 3
check "the dry run wrote nothing" 0 '' test "$before" = "$("$cli" seat --score)"
same_seed() { "$cli" seat --dry-run --seed 11 | sed 's/"seconds":[0-9.]*,//'; }
check "the same seed, the same chart" 0 '' test "$(same_seed)" = "$(same_seed)"
check "seat by the rules" 0 '"hard_violations":0,.*"unseated":0,"written":true' "$cli" seat --seconds 2
check "everyone attending is seated" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM CONTACT WHERE ATTENDING_FG = 'Y' AND DINING_TABLE_ID IS NULL"
check "seat with a bad option" 2 'usage: seat \[--keep-seated\]' "$cli" seat --seconds 0
check "seat --score takes nothing else" 2 'usage: seat' "$cli" seat --score --dry-run
# Importing contacts: CSV or vCard by content, the suggested mapping or --map, all or nothing.
"$cli" init >/dev/null
imports="$home/import files"
mkdir -p "$imports"
printf 'First Name,Last Name,E-mail 1 - Value,Phone 1 - Value,Address 1 - Postal Code,Title,RSVP ID\r\nJohn,Smith,js@x.example,555-1 ::: 555-9,1970,Mr.,41\r\nMary,Smith,,,,Mrs.,41\r\n"Zoë ""Z""",Lee,,,,,\r\n' >"$imports/google export.txt"
contacts_before=$(value "SELECT COUNT(*) FROM CONTACT")
check "import dry run prints the preview" 0 '^"Mr\.","John",,"Smith",,,,,"1970",,,"js@x\.example","555-1",' "$cli" import "$imports/google export.txt" --dry-run
check "a dry run changes nothing" 0 "^$contacts_before\$" value "SELECT COUNT(*) FROM CONTACT"
check "import a Google file" 0 '^Added 3 contacts, replaced 0, left out 0; made 1 invitations$' "$cli" import "$imports/google export.txt" --five-digit-zip
check "the couple's envelope" 0 '^Mr\. and Mrs\. John Smith$' value "SELECT OUTER_ENVELOPE_TX FROM INVITE WHERE INVITE_RSVP_ID = 41"
check "the zip has five digits" 0 '01970' value "SELECT ADDRESS_TX FROM CONTACT WHERE EMAIL_TX = 'js@x.example'"
check "again, replacing" 0 '^Added 0 contacts, replaced 3,' "$cli" import "$imports/google export.txt"
check "again, allowing duplicates" 0 '^Added 3 contacts, replaced 0,' "$cli" import "$imports/google export.txt" --duplicates allow
check "the names as they stood" 0 '^2$' value "SELECT COUNT(*) FROM CONTACT WHERE FIRST_NM = 'Zoë \"Z\"'"
printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nN:Okafor;Ada;;;\r\nTEL;TYPE=cell:555-7\r\nEND:VCARD\r\n' >"$imports/card.csv"
check "a vCard by its content" 0 '^Added 1 contacts' "$cli" import "$imports/card.csv"
printf 'Given;Cell\nBo;555-3\n' >"$imports/mapped.csv"
check "import with --map" 0 '^,"Bo",,,,,,,,,,,"555-3",' "$cli" import "$imports/mapped.csv" --delimiter ';' --map "Given=FIRST_NM" --map "cell=PHONE_TX" --dry-run
printf 'First,Last\nAnn,Lee\n"Bo,Li\n' >"$imports/broken.csv"
contacts_before=$(value "SELECT COUNT(*) FROM CONTACT")
check "a broken file is refused by file and line" 1 'broken\.csv, line 3: .*Nothing was imported\.$' "$cli" import "$imports/broken.csv"
check "nothing of a broken file remains" 0 "^$contacts_before\$" value "SELECT COUNT(*) FROM CONTACT"
check "import with a bad option" 2 'usage: import FILE' "$cli" import "$imports/mapped.csv" --duplicates sometimes
check "import with an unknown field" 1 '"FAX_TX" is no field' "$cli" import "$imports/mapped.csv" --map "Cell=FAX_TX"
# The checklist: due dates counted back from the wedding day, all of them, and only changes counted.
check "checklist needs --refresh-due-dates" 2 'usage: checklist --refresh-due-dates' "$cli" checklist
wedding=$("$cli" sql "SELECT EVENT_DT FROM EVENT WHERE EVENT_ID = 1" | tail -1 | tr -d '"\r' | cut -c1-10)
check "checklist --refresh-due-dates" 0 '^Refreshed the due dates from the wedding day [0-9]{2}-[A-Z][a-z]{2}-[0-9]{4}: [0-9]+ tasks? changed$' "$cli" checklist --refresh-due-dates
check "a second refresh changes nothing" 0 ': 0 tasks changed$' "$cli" checklist --refresh-due-dates
check "a task of frame 10 falls due the day after the wedding" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM TASK WHERE TASK_GROUP_ID = 10 AND DUE_DT IS NOT date('$wedding', '+1 day')"
check "a task of frame 0 falls due a year before" 0 '^"0"' "$cli" sql "SELECT COUNT(*) FROM TASK WHERE TASK_GROUP_ID = 0 AND DUE_DT IS NOT date('$wedding', '-365 days')"
# Travel: guests given a hotel or a flight, all of them or none, and the reports of both.
hotel_of() { "$cli" sql "SELECT IFNULL(HOTEL_ID, 'none') FROM CONTACT WHERE CONTACT_ID = $1" | tail -1 | tr -d '"\r'; }
check "travel lists the hotels" 0 '^Hotel #1 - .+: [0-9]+ guests?, [0-9]+ rooms?$' "$cli" travel
check "travel lists the flights" 0 '^Flight #1 - .+: [0-9]+ passengers?$' "$cli" travel
check "house two guests" 0 "^Hotel #2: ${ids[0]} ${ids[1]}$" "$cli" house --hotel 2 "${ids[0]}" "${ids[1]}"
check "they stay at hotel 2" 0 '^2$' hotel_of "${ids[1]}"
check "house with an unknown guest" 1 'no contact with the key 99999\. Nothing was changed' "$cli" house --hotel 1 "${ids[0]}" 99999
check "nobody moved" 0 '^2$' hotel_of "${ids[0]}"
check "house at an unknown hotel" 1 'there is no hotel #77\. Nothing was changed' "$cli" house --hotel 77 "${ids[0]}"
check "house --none" 0 "^No hotel: ${ids[0]}$" "$cli" house --none "${ids[0]}"
check "no hotel any more" 0 '^none$' hotel_of "${ids[0]}"
check "board without a flight" 2 'usage: board \(--flight NUMBER \| --none\) ID' "$cli" board "${ids[0]}"
check "board a flight" 0 "^Flight #1: ${ids[2]}$" "$cli" board --flight 1 "${ids[2]}"
check "travel takes no arguments" 2 'usage: travel' "$cli" travel --all
check "the hotels report" 0 '04_Hotels_.*\.rtf$' "$cli" report Hotels
check "the flight overview as CSV" 0 '04_FlightOverview_.*\.csv$' "$cli" report Flights --filter 2 --format csv
# Events: the wedding day moves as the event editor moves it; every date goes into one calendar file.
check "wedding needs a real date" 2 '--date takes a date such as 2027-06-05' "$cli" wedding --date 2027-02-30
check "wedding refuses a time that is none" 2 '--time takes a time such as' "$cli" wedding --date 2027-06-05 --time "half past"
check "wedding --date --time" 0 '^05-Jun-2027 (3:30 PM|15:30)$' "$cli" wedding --date 2027-06-05 --time "3:30 PM"
check "wedding prints the day" 0 '^05-Jun-2027 (3:30 PM|15:30)$' "$cli" wedding
check "wedding --date keeps the hour" 0 '^12-Jun-2027 (3:30 PM|15:30)$' "$cli" wedding --date 2027-06-12
check "the wedding day row follows" 0 '^"2027-06-12 15:30:00"' "$cli" sql "SELECT EVENT_DT FROM EVENT WHERE EVENT_ID = 1"
check "ics rejects arguments" 2 'usage: ics \[--out FILE\]' "$cli" ics --frob
check "ics writes the calendar" 0 "^$home/Reports/Vowren.ics$" "$cli" ics
check "ics holds the wedding day" 0 '^DTSTART:20270612T' tr -d '\r' <"$home/Reports/Vowren.ics"
check "ics --out" 0 "^$home/wedding.ics$" "$cli" ics --out "$home/wedding.ics"
check "ics into a missing folder" 1 'was not written' "$cli" ics --out "$home/no/such/x.ics"
check "the calendar of two months" 0 '09_Calendar_.*\.csv$' "$cli" report Events --filter 2 --months 2027-05:2027-06 --format csv
check "a calendar of no months" 2 '--months takes the calendar' "$cli" report Events --filter 2 --months 2027-13:2027-01
check "the timeline of the wedding day" 0 '10_Timeline_.*\.rtf$' "$cli" report Timelines --filter 1
# The budget in cents and the thank-you notes: figures a script can add up, all or none.
check "budget lists the categories and the totals" 0 '^"Totals",[0-9]+\.[0-9]{2},' "$cli" budget
check "budget takes no arguments" 2 'takes no arguments' "$cli" budget extra
check "every actual is due plus paid" 0 '^ok$' bash -c "\"$cli\" budget | awk -F, 'NR > 1 && \$5 * 100 != \$3 * 100 + \$4 * 100 { bad = 1 } END { print bad ? \"bad\" : \"ok\" }'"
check "estimates vs. actuals as CSV" 0 "^$home/Reports/07_BudgetEstimatesActuals_.*\.csv$" "$cli" report Budget --filter 99 --format csv
check "its totals are plain numbers" 0 '^"Totals:","[0-9]+\.[0-9]{2}","100\.00%","[0-9]+\.[0-9]{2}"' cat "$(ls -t "$home"/Reports/07_BudgetEstimatesActuals_*.csv | head -1)"
check "budget by payer as CSV" 0 "^$home/Reports/07_BudgetPaidBy_.*\.csv$" "$cli" report Budget --filter 98 --format csv
check "a subtotal per payer" 0 "^\"Subtotal Bride's Family\",\"[0-9]+\\.[0-9]{2}\"" cat "$(ls -t "$home"/Reports/07_BudgetPaidBy_*.csv | head -1)"
gift=$(value "SELECT MIN(GIFT_ID) FROM GIFT")
check "thank-you marks a note sent" 0 "^Thank-you notes sent: $gift$" "$cli" thank-you "$gift"
check "the note is sent" 0 '^Y$' value "SELECT THANK_YOU_SENT_FG FROM GIFT WHERE GIFT_ID = $gift"
check "thank-you --unsent takes it back" 0 "^Thank-you notes unsent: $gift$" "$cli" thank-you --unsent "$gift"
check "an unknown gift changes nothing" 1 'there is no gift 99999\. Nothing was changed' "$cli" thank-you "$gift" 99999
check "the known one of them stays unsent" 0 '^N$' value "SELECT THANK_YOU_SENT_FG FROM GIFT WHERE GIFT_ID = $gift"
check "thank-you needs keys" 2 'usage: thank-you' "$cli" thank-you
# Custom reports: the catalogue, a query of the catalogue, a query of one's own, and what is refused.
check "report all writes a custom report of each shipped query" 0 '^many$' \
    sh -c "[ \$(ls \"$home\"/Reports/99_Custom_*.csv | wc -l) -ge 12 ] && echo many"
check "custom-reports lists the catalogue" 0 $'^Guests and replies\tGuests without a meal\tAttending guests' "$cli" custom-reports
check "custom-reports with the statements" 0 $'\tSELECT ' "$cli" custom-reports --sql
check "report of a query of the catalogue" 0 "^$home/Reports/99_Custom_[0-9_-]+\.rtf$" "$cli" report Custom --query "guests WITHOUT a meal"
check "report of a query of one's own" 0 '99_Custom_.*\.csv$' "$cli" report Custom --format csv --title "The couple" \
    --sql "SELECT FIRST_NM AS \"2000 First\", LAST_NM AS 'Last' FROM CONTACT WHERE CONTACT_ID <= 2"
check "its header comes from the aliases" 0 '^"First","Last"' sh -c "cat \"\$(ls -t \"$home\"/Reports/99_Custom_*.csv | head -1)\" | tr -d '\357\273\277'"
reports_before=$(ls "$home/Reports" | wc -l)
check "report Custom refuses a delete" 1 "SQL must be a 'SELECT' statement\." "$cli" report Custom --sql "DELETE FROM CONTACT"
check "report Custom refuses a second statement" 1 'only one statement' "$cli" report Custom --sql "SELECT 1; DELETE FROM CONTACT"
check "report Custom says the engine's words" 1 'no such table: NOWHERE' "$cli" report Custom --sql "select * from NOWHERE"
check "a refused custom report writes no file" 0 "^$reports_before\$" sh -c "ls \"$home/Reports\" | wc -l"
check "the contacts are all there" 0 '^"[0-9]+"' "$cli" sql "SELECT COUNT(*) FROM CONTACT"
check "report Custom of an unknown query" 2 'no query "Nope"' "$cli" report Custom --query Nope
check "report Custom of both" 2 'Custom takes one of' "$cli" report Custom --query A --sql "SELECT 1"
check "only Custom takes a query" 2 'only the Custom section takes' "$cli" report Contacts --sql "SELECT 1"
printf '<SQL_ITEM>\r\n<SQL_NAME>Kept</SQL_NAME>\r\n<SQL>SELECT 1 AS One</SQL>\r\n</SQL_ITEM>\r\n' >"$home/sql.xml"
check "a downloaded catalogue is preferred" 0 $'^\tKept\t$' "$cli" custom-reports
printf '<SQL_ITEM>\n<SQL_NAME>Kept</SQL_NAME>\n' >"$home/sql.xml"
check "a damaged catalogue is said" 0 'LF alone.*program.s own' "$cli" custom-reports
check "and the program's own is listed" 0 'Guests without a meal' "$cli" custom-reports
rm -f "$home/sql.xml"

# The invitation wording and the playlists.
saved_wording() { "$cli" sql "SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 1" | md5sum; }
wording_before=$(saved_wording)
check "wording starts with an empty line" 0 '^$' sh -c "\"$cli\" wording | head -1"
check "wording by the stored choices" 0 '^the son of$' "$cli" wording
check "wording spells the year" 0 '^Two thousand and [a-z-]+$' "$cli" wording
check "wording of another template" 0 '^at the Nuptial Mass uniting their daughter$' "$cli" wording --template 12 --phrase 1
check "wording with a place of two lines" 0 '^St\. "Ann" & <Hall>$' "$cli" wording --place $'St. "Ann" & <Hall>\nSalem' --no-reception
check "wording without reception" 1 '' sh -c "\"$cli\" wording --no-reception | grep -q 'Reception to follow'"
check "wording with a bad template" 2 '--template takes 0 to 18' "$cli" wording --template 19
check "wording with both reception options" 2 'exclude each other' "$cli" wording --reception X --no-reception
check "wording changes nothing" 0 "^$wording_before\$" saved_wording
check "wording --save" 0 '^Reception to follow$' "$cli" wording --save --reception 'The Barn'
check "the saved wording" 0 'The Barn' "$cli" sql "SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 1"
check "playlist of every song" 0 '/Playlists/All_Songs\.wpl$' "$cli" playlist --all
check "playlist of a list into a file" 0 "^$home/c&d.wpl\$" "$cli" playlist Ceremony --out "$home/c&d.wpl"
check "the playlist counts its songs" 0 '<meta name="ItemCount" content="[0-9]+"/>' cat "$home/c&d.wpl"
check "playlist of an unknown list" 1 'there is no songlist "Nope"' "$cli" playlist Nope
check "playlist without a list" 2 'usage: playlist SONGLIST' "$cli" playlist
check "playlist into a folder that is a file" 1 'could not be written' "$cli" playlist --all --out "$home/c&d.wpl/x.wpl"
if command -v xmllint >/dev/null; then
    check "the playlist is XML" 0 '' xmllint --noout "$home/Playlists/All_Songs.wpl"
fi

# The external label program: off until named, then handed the list the report screen would hand it.
check "no label program by default" 0 '^active: no$' "$cli" label-program
check "labels can't be handed over before one is named" 1 'not set up' "$cli" label-program --start Gifts
mkdir -p "$home/Label Desk"
printf '#!/bin/sh\necho "$@" > "$(dirname "$0")/args.tmp"; mv "$(dirname "$0")/args.tmp" "$(dirname "$0")/args.txt"\n' >"$home/Label Desk/labeldesk"
chmod +x "$home/Label Desk/labeldesk"
check "a label program in a folder with a blank" 0 '^active: yes$' "$cli" label-program --folder "$home/Label Desk" --exe labeldesk
event=$(value "SELECT MAX(EVENT_ID) FROM EVENT")
check "the gifts of an event go to it" 0 "^$home/Label Desk/labeldesk 1,6,3,$event\$" "$cli" label-program --start Gifts --filter "$event"
for _ in 1 2 3 4 5 6 7 8 9 10; do [ -f "$home/Label Desk/args.txt" ] && break; sleep 0.5; done
check "it got one argument" 0 "^1,6,3,$event\$" cat "$home/Label Desk/args.txt"
check "tent cards go to it too" 0 ' 1,17,1,0$' "$cli" label-program --start Tentcards
check "RSVPs are no labels" 2 "can't be printed as labels" "$cli" label-program --start RSVPs
check "label-program with a stray argument" 2 'usage: label-program' "$cli" label-program --folder
check "label-program --clear" 0 '^active: no$' "$cli" label-program --clear

# Label sheets, on a demo wedding of their own.
labels_home=$(mktemp -d)
labels() { VOWREN_HOME="$labels_home" "$cli" labels "$@"; }
VOWREN_HOME="$labels_home" "$cli" demo >/dev/null 2>&1
check "labels of the contacts" 0 "^$labels_home/Reports/Labels_[0-9_-]+\.rtf\$" labels Contacts
check "labels leave out who has no address" 0 'without an address left out' labels Contacts
check "labels on A4 from label 5 by section key" 0 'Labels_.*\.rtf$' labels 9 --sheet L7160 --start 5
check "labels of a guest list" 0 'Labels_.*\.rtf$' labels Widgets
check "labels as PDF" 0 'Labels_.*\.pdf$' labels Invitations --format pdf
check "labels of a section without" 2 '"RSVPs" prints no labels' labels RSVPs
check "labels of the custom filter row" 2 'no such filter row for labels' labels Contacts --filter 99999
check "labels on a sheet we do not know" 2 '--sheet takes 8160' labels Contacts --sheet 5160
check "labels from label 0" 2 '--start takes the number' labels Contacts --start 0
check "labels without a section" 2 'give a SECTION' labels
latest_sheet() { ls -t "$labels_home"/Reports/Labels_*.rtf | head -1; }
empty_rows() { # the rows of a label sheet in which every label is empty
    python3 - "$1" <<'PY'
import re, sys
rows = open(sys.argv[1], encoding="latin-1").read().split("\\trowd")[1:]
print("empty rows:", sum(1 for row in rows if not re.search(r"sa30 [^\\]", row)))
PY
}
labels Vendors --sheet L7160 --start 22 >/dev/null 2>&1
check "labels start on the label asked for" 0 '^empty rows: 7$' empty_rows "$(latest_sheet)"
# On the demo wedding every report of the catalogue is there, and --all writes each in both dialects.
check "no report of the catalogue is missing" 1 '' sh -c "VOWREN_HOME=\"$labels_home\" \"$cli\" report --list | grep -q 'not yet available'"
check "report all on the demo wedding" 0 '99_Custom_.*\.csv$' env VOWREN_HOME="$labels_home" "$cli" report --all --format both
check "as many RTF as CSV files, each report once" 0 '^same [0-9]{2,}$' sh -c \
    "r=\$(ls \"$labels_home\"/Reports/[0-9]*.rtf | wc -l); c=\$(ls \"$labels_home\"/Reports/[0-9]*.csv | wc -l); [ \$r -eq \$c ] && echo same \$r"
rm -rf "$labels_home"

printf 'not a database at all' >"$home/Database/Vowren.quilldata"
check "a damaged file is named and kept" 1 "Unable to connect to database: $home/Database/Vowren.quilldata" "$cli" init
check "the damaged file is untouched" 0 'not a database at all' cat "$home/Database/Vowren.quilldata"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
