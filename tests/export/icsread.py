# Reads calendar files as a calendar program would, with python3-icalendar, beside the meeting
# requests of an outbox.
#
# usage: icsread.py FOLDER OUTBOX
#
# Prints, for each file of FOLDER by name, its name, method and time zones, then each event by
# start: start, end, title, attendee, and "request" where a request of the outbox carries the
# same appointment at the same times, else "-". Last, the number of requests.
import email, email.policy, pathlib, sys

import icalendar

folder, outbox = (pathlib.Path(arg) for arg in sys.argv[1:3])
requests = set()
for mail in sorted(outbox.glob("*.eml")):
    message = email.message_from_bytes(mail.read_bytes(), policy=email.policy.default)
    for part in message.walk():
        if part.get_content_type() == "text/calendar":
            for event in icalendar.Calendar.from_ical(part.get_content()).walk("VEVENT"):
                requests.add((str(event["UID"]), event.decoded("DTSTART"), event.decoded("DTEND")))
for path in sorted(folder.iterdir()):
    calendar = icalendar.Calendar.from_ical(path.read_bytes())
    zones = ",".join(str(zone["TZID"]) for zone in calendar.walk("VTIMEZONE"))
    print(f"{path.name}\t{calendar['METHOD']}\t{zones}")
    events = sorted(calendar.walk("VEVENT"), key=lambda e: (str(e.decoded("DTSTART")), str(e["SUMMARY"])))
    for event in events:
        start, end, attendee = event.decoded("DTSTART"), event.decoded("DTEND"), event.get("ATTENDEE")
        who = f"{attendee.params.get('CN', '')} <{attendee}>" if attendee else ""
        requested = "request" if (str(event["UID"]), start, end) in requests else "-"
        print(f"\t{start.isoformat()}\t{end.isoformat()}\t{event['SUMMARY']}\t{who}\t{requested}")
print(f"requests\t{len(requests)}")
