"""A mail client without a window: stores the mail that it receives. Run as mail-client.py FOLDER (MAILTO-URL | FILE).

FOLDER then contains the subject ("subject"), the recipients, one per line ("to"), each attachment ("1-NAME", "2-NAME" ...)
and, written last, the kind of the argument ("kind": "url" or "message").
"""
import email
import email.policy
import pathlib
import sys
import urllib.parse
import urllib.request

folder = pathlib.Path(sys.argv[1])
argument = sys.argv[2]


def write(name, contents):
    (folder / name).write_bytes(contents)


def write_mail(kind, subject, to, attachments):
    write("subject", subject.encode())
    write("to", "".join(address + "\n" for address in to).encode())
    for number, (name, contents) in enumerate(attachments, 1):
        write(f"{number}-{name}", contents)
    # Renamed when complete, so that a waiting test reads the whole file.
    write("kind.new", kind.encode())
    (folder / "kind.new").rename(folder / "kind")


if argument.startswith("mailto:"):
    parts = urllib.parse.urlsplit(argument)
    fields = urllib.parse.parse_qsl(parts.query.replace("+", "%2B"))
    values = lambda wanted: [value for name, value in fields if name == wanted]
    files = [pathlib.Path(path) for path in values("attach")]
    write_mail("url", "".join(values("subject")), [urllib.parse.unquote(parts.path), *values("to")],
               [(file.name, file.read_bytes()) for file in files])
else:
    path = urllib.request.url2pathname(urllib.parse.urlsplit(argument).path)
    message = email.message_from_bytes(pathlib.Path(path).read_bytes(), policy=email.policy.default)
    write_mail("message", message["subject"], [address.addr_spec for address in message["to"].addresses],
               [(part.get_filename(), part.get_payload(decode=True)) for part in message.iter_attachments()])
