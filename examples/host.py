"""A host in Python: ranks the bar texts of its project, answers a question by a callback, and lets the user
change a stirrup in a panel."""
import rankermodule as rm
from rankermodule import compose, rank

beam = {"name": "边梁 KL3", "stirrup": "A8@200(2)"}


def print_candidates(ranking: rank.Ranking) -> None:
    """With their stamps; an arrow shows the focus."""
    for place, (text, stamp) in enumerate(zip(ranking.texts, ranking.stamps)):
        print(f"{'>' if place == ranking.focus else ' '} {text:14} {stamp}")


def take_text(panel: rm.Panel, delivery: rm.Delivery) -> None:
    """A panel hands over what the user has confirmed."""
    beam["stirrup"] = delivery.text


print("module", rm.version())
with rm.Host(stirrups=lambda: ["A8@100/200(2)", "A10@100/200(4)", "A8@100/200(2)"], deliver=take_text) as host:
    # Top bars of a beam 300 mm wide that needs 1000 mm2: the project's texts in one call, then the table.
    print(f"bars of {beam['name']}:")
    print_candidates(rank.bars(["2B22", "2B25", "2B22", "3B25 1/2"], width=300, area=1000, kind="1",
                               table_rows=True))

    # Stirrups: the host's callback is asked.
    print(f"stirrups of {beam['name']}, now {beam['stirrup']}:")
    print_candidates(rank.stirrups(host))

    # The panel: row "100" of the tight spacings, then the right button, which confirms.
    panel = rm.Panel(rm.PanelKind.STIRRUP_PANEL, host, rm.Route.HOST)
    panel.set_text(beam["stirrup"])
    panel.show(400, 300)
    panel.click(1356, 1)
    panel.confirm()
    print("confirmed:", beam["stirrup"])

print("spacing", compose.measure(rm.Kind.STIRRUP, beam["stirrup"]).spacing, "mm")
try:
    rank.sections(["300x600", "梁🏗"])
except rm.BadText as error:
    print("refused:", error)
