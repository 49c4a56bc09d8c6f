# A mail server on 127.0.0.1 for the export's tests, on Debian's aiosmtpd.
#
# usage: smtpserver.py FILE [--tls CERT KEY] [--login USER PASSWORD] [--refuse ADDRESS]
#                           [--drop-at N] [--silent] [--delay SECONDS]
#
# Prints its port once it listens, and serves until its standard input closes. Each message it
# takes is a line of JSON in FILE: the envelope, the headers as a reader decodes them, the
# plain text, and the calendar request as python3-icalendar reads it. --tls requires STARTTLS,
# --login that login; --refuse answers 550 to that recipient, --drop-at cuts the connection
# during the Nth message, --silent never says a word, and --delay answers each message that
# many seconds after it came.
import argparse, asyncio, email.policy, json, logging, select, socket, ssl, sys

import icalendar
from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult, LoginPassword


def calendar_of(part):
    calendar = icalendar.Calendar.from_ical(part.get_content())
    event = next(c for c in calendar.walk() if c.name == "VEVENT")
    return {"method": str(calendar["METHOD"]), "typeMethod": part.get_param("method"),
            "timezones": len([c for c in calendar.walk() if c.name == "VTIMEZONE"]),
            "start": event.decoded("DTSTART").isoformat(), "end": event.decoded("DTEND").isoformat(),
            "attendee": str(event["ATTENDEE"]), "rsvp": event["ATTENDEE"].params.get("RSVP"),
            "organizer": str(event["ORGANIZER"]), "uid": str(event["UID"]),
            "sequence": int(event.get("SEQUENCE", 0))}


class Handler:
    def __init__(self, options):
        self.options = options
        self.delivered = 0

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if address == self.options.refuse:
            return "550 5.1.1 <%s>: Recipient address rejected" % address
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        self.delivered += 1
        if self.delivered == self.options.drop_at:
            server.transport.abort()
            return "421 gone"
        message = email.message_from_bytes(envelope.content, policy=email.policy.default)
        received = {"peer": session.peer[1], "rcpt": envelope.rcpt_tos, "to": str(message["To"]),
                    "subject": str(message["Subject"]), "text": None, "calendar": None}
        for part in message.walk():
            if part.get_content_type() == "text/plain":
                received["text"] = part.get_content().replace("\r\n", "\n")
            elif part.get_content_type() == "text/calendar":
                received["calendar"] = calendar_of(part)
        with open(self.options.file, "a", encoding="utf-8") as file:
            file.write(json.dumps(received) + "\n")
        await asyncio.sleep(self.options.delay)
        return "250 OK"


def serve_silently():
    listener = socket.create_server(("127.0.0.1", 0))
    print(listener.getsockname()[1], flush=True)
    held = []
    while True:
        ready = select.select([listener, sys.stdin], [], [])[0]
        if sys.stdin in ready and not sys.stdin.read(1):
            return
        if listener in ready:
            held.append(listener.accept()[0])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("file")
    parser.add_argument("--tls", nargs=2)
    parser.add_argument("--login", nargs=2)
    parser.add_argument("--refuse")
    parser.add_argument("--drop-at", type=int, default=0)
    parser.add_argument("--silent", action="store_true")
    parser.add_argument("--delay", type=float, default=0)
    options = parser.parse_args()
    if options.silent:
        return serve_silently()
    logging.getLogger("mail.log").setLevel(logging.ERROR)
    settings = {}
    if options.tls:
        context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        context.load_cert_chain(*options.tls)
        settings.update(tls_context=context, require_starttls=True)
    if options.login:
        login = LoginPassword(*(value.encode() for value in options.login))
        settings.update(auth_required=True, authenticator=lambda server, session, envelope,
                        mechanism, data: AuthResult(success=data == login, handled=False))
    with socket.create_server(("127.0.0.1", 0)) as probe:
        port = probe.getsockname()[1]
    controller = Controller(Handler(options), hostname="127.0.0.1", port=port, **settings)
    controller.start()
    print(port, flush=True)
    sys.stdin.read()
    controller.stop()


main()
