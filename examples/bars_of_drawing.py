"""Opens a drawing in DXF, takes its bar texts, and prints the candidates for the top bars of a beam.

bars_of_drawing.py [FILE.dxf [BEAM [AREA]]]   the steel area in mm2; without a file a small one is made first
"""
import re
import sys
import tempfile
from pathlib import Path

import ezdxf
from rankermodule import rank

SIGNS = {"%%130": "A", "%%131": "B", "%%132": "C", "%%133": "D"}  # bar grades as drawings write them
SAMPLE = ["KL1(7) 300x700", "%%1308@100/200(2)", "2%%13120;3%%13122", "KL2(7) 350x700", "%%1308@100/200(4)",
          "2%%13125;2%%13125+1%%13122", "N4%%13114", "屋面边梁WKL3(2A) 250x600", "2%%13120;2%%13125"]


def make_drawing(file: Path) -> None:
    """As a plan has them: one text under the other."""
    drawing = ezdxf.new("R2010")
    for line, text in enumerate(SAMPLE):
        drawing.modelspace().add_text(text, dxfattribs={"insert": (1000, -325 * line), "height": 300})
    drawing.saveas(file)


def texts_of(file: Path) -> list:
    """All texts of the drawing, one line each, with grade letters for the signs."""
    found = []
    for entity in ezdxf.readfile(file).modelspace().query("TEXT MTEXT"):
        text = entity.dxf.text if entity.dxftype() == "TEXT" else entity.text.replace("\\P", "\n")
        for sign, letter in SIGNS.items():
            text = text.replace(sign, letter)
        found += text.split("\n")
    return found


def main(file: Path, beam: str = "KL2", area: str = "1500") -> None:
    texts = texts_of(file)
    named = re.search(rf"^{re.escape(beam)}\(.*?\) *(\d+)x", "\n".join(texts), re.M)
    width = int(named[1]) if named else 300
    top_bars = [text.split(";")[0] for text in texts if re.match(r"\d+[A-D]\d", text)]
    print(f"{file.name}: {len(texts)} texts, {len(top_bars)} of them top bars")
    print(f"top bars for {beam}, {width} mm wide, {area} mm2:")
    ranking = rank.bars(top_bars, width=width, area=int(area), kind="1", table_rows=True)
    for place, (text, stamp) in enumerate(zip(ranking.texts, ranking.stamps)):
        print(f"{'>' if place == ranking.focus else ' '} {text:10} {'in the drawing' if stamp else 'guess or table'}")


if len(sys.argv) > 1:
    main(Path(sys.argv[1]), *sys.argv[2:])
else:
    with tempfile.TemporaryDirectory() as folder:
        make_drawing(Path(folder, "floor.dxf"))
        main(Path(folder, "floor.dxf"))
