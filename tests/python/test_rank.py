"""The rankers, and callbacks that answer them, raise, call back or let their host go."""
import gc
import threading
import weakref

import pytest

import rankermodule as rm
from rankermodule import rank, tables

STIRRUPS = ["A8@100/200(2)", "A10@100/200(4)", "A8@100/200(2)"]
BARS = ["2B22", "2B25", "2B22", "3B25 1/2"]
NAMES = ["KL2(1)", "KL5(1)", "KL2(2A)", "KL5(2A)"]


def test_texts_in_one_call_or_by_a_callback_or_kept_rank_alike():
    asked = []
    host = rm.Host(bars=lambda kind: asked.append(kind) or BARS)
    for project in (BARS, (text for text in BARS), rm.Texts(BARS), host):
        ranking = rank.bars(project, width=300, area=1000, kind="5.1" if project is host else "1")
        assert (ranking.texts[:3], ranking.stamps[:4], ranking.focus) == (
            ["2B22", "2B25", "3B25 1/2"], [10, 5, 5, 0], 2)
        assert len(ranking.texts) == len(ranking.stamps)
    assert asked == ["5.1"]
    more = rank.bars(BARS, width=300, area=1000, table_rows=True)
    assert set(more.texts) >= {"2B16", "2B18", "2B20", "2B25"}
    assert (more.focus, more.stamps[-1]) == (2, 0)


def test_the_other_rankers():
    elevations = rank.elevations(["(-0.300)", "0.100", "-0.200", "0.100"])
    assert elevations == rank.Ranking(["      ", "-0.200", "(-0.300)", "0.100"])
    assert rank.sections([], project_kind=0).texts == [
        "300x1200", "250x500", "300x500", "350x500", "400x500", "450x500", "250x600", "300x600", "350x600",
        "400x600", "450x600"]
    assert rank.bars(["2B20", "2B25", "2B20", "N2B25"], width=300, area=1000).texts == [
        "2B20", "2B25", "2B12", "2B14", "2B16", "2B18", "2B22", "2B28"]
    stirrups = rank.stirrups(["A8@100/200(2)", "A8@200(2)", "A8@200(2)"])
    assert stirrups.texts == [
        "A8@200(2)", "A8@100/200(2)", "A8@100/150(2)", "A8@150/200(2)", "A8@150/250(2)", "A10@100/150(2)",
        "A10@200(2)", "A10@100/200(2)", "A10@150/200(2)", "A10@150/250(2)"]
    more = rank.stirrups(["A8@100/200(2)"], width=300, seismic=2, grade=30, table_rows=True)
    assert (more.texts[0], more.texts[-1], more.stamps[-1]) == (
        "A8@100/200(2)", tables.find_stirrups(width=300, grade=30, seismic=2)[-1], 0)
    assert "边L2(1)" in rank.names(["边L1(1)", "边L4(1)"]).texts
    assert rank.bars([], width=300, area=1000).stamps[0] == 0


def test_names_are_asked_by_type_and_remembered():
    asked = []
    host = rm.Host(beam_types=lambda: ["KL"],
                   beam_numbers=lambda beam: asked.append(beam) or (["(1)", "(2A)"], [1, 4]))
    with rank.Ranker(rm.Kind.NAME, host) as ranker:
        for _ in range(2):
            assert ranker.run() == rank.Ranking(NAMES, [], 0)
        assert asked == ["KL", "KL"], "the type of the last run is still known, once"
        assert [ranker.set_previous_name(name) for name in ("KL3", "KL5(2)", "KL4", "")] == [0, 5, -4, 0]
    with pytest.raises(rm.Closed):
        ranker.run()
    host.beam_numbers = lambda beam: (["(1)"], [-1])
    with pytest.raises(rm.BadArgument):
        rank.names(host)


@pytest.mark.parametrize("kind", [rm.Kind.BAR_PIECE, 77])
def test_no_ranker_for_it(kind):
    with pytest.raises(rm.BadArgument):
        rank.Ranker(kind)


@pytest.mark.parametrize("setting", [
    lambda ranker: ranker.set_bars(300, 1000, "1"),
    lambda ranker: ranker.set_stirrups(300, 2, 30),
    lambda ranker: ranker.set_project_kind(1),
    lambda ranker: ranker.set_previous_name("KL1"),
    lambda ranker: ranker.run([], table_rows=True),
])
def test_settings_that_elevations_do_not_have(setting):
    with pytest.raises(rm.BadArgument):
        setting(rank.Ranker(rm.Kind.ELEVATION))


class Wrong(Exception):
    """What a host's own code raises."""


def raising(error):
    def callback(*_arguments):
        raise error
    return callback


@pytest.mark.parametrize("error", [Wrong("梁"), KeyboardInterrupt(), StopIteration()])
def test_what_a_callback_raises_comes_out_of_the_call(error):
    host = rm.Host(stirrups=raising(error), bars=lambda kind: rank.stirrups(host).texts,
                   beam_types=lambda: ["KL", "L"], beam_numbers=raising(error))
    for call in (lambda: rank.stirrups(host), lambda: rank.bars(host, width=300, area=1000),
                 lambda: rank.names(host)):
        with pytest.raises(type(error)) as raised:
            call()
        assert raised.value is error
        assert any(entry.name == "callback" for entry in raised.traceback), "it tells where it was raised"
    host.stirrups = lambda: STIRRUPS
    assert rank.stirrups(host).texts[0] == STIRRUPS[0], "the next call is as if nothing had been"


@pytest.mark.parametrize("answer, error", [
    (["A8@200(2)", "🏗"], rm.BadText), (["A8@200(2)", None], TypeError), (7, TypeError), ("A8@200(2)", TypeError),
])
def test_wrong_answers(answer, error):
    with pytest.raises(error):
        rank.stirrups(rm.Host(stirrups=lambda: answer))


def test_a_callback_may_rank_and_what_it_catches_is_over():
    def stirrups():
        with pytest.raises(rm.BadText):
            rank.sections(["🏗"])
        return [inner.texts[0] for inner in (rank.stirrups(STIRRUPS), rank.stirrups(other))]
    other = rm.Host(stirrups=lambda: ["A6@70(2)"])
    assert rank.stirrups(rm.Host(stirrups=stirrups)).stamps[:3] == [1, 1, 0]


def test_a_host_lives_as_long_as_it_is_used_and_no_longer():
    class Project:
        def stirrups(self):
            gc.collect()
            return STIRRUPS
    ranker = rank.Ranker(rm.Kind.STIRRUP, rm.Host(stirrups=Project().stirrups))
    gc.collect()
    assert ranker.run().focus == 1, "the ranker keeps the host, the host its callback's object"
    host = weakref.ref(ranker._host)
    del ranker
    gc.collect()
    assert host() is None


def test_a_host_may_be_closed_in_its_callback():
    host = rm.Host(stirrups=lambda: host.close() or STIRRUPS)
    ranker = rank.Ranker(rm.Kind.STIRRUP, host)
    for _ in range(2):
        with pytest.raises(rm.Closed):
            ranker.run()


def test_threads_rank_by_turns():
    wrong = []

    def work(text):
        host = rm.Host(stirrups=lambda: [text])
        for _ in range(50):
            if rank.stirrups(host).texts[0] != text:
                wrong.append(text)
            try:
                rm.Texts([text, "🏗"])
            except rm.BadText as error:
                if "text 1" not in str(error):
                    wrong.append(str(error))
    threads = [threading.Thread(target=work, args=(f"A{size}@70(2)",)) for size in (6, 8, 10, 12)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong


def test_what_is_raised_outside_of_any_call_is_reported(monkeypatch):
    reported = []
    monkeypatch.setattr("sys.unraisablehook", lambda told: reported.append(told.exc_value))
    host = rm.Host(stirrups=raising(Wrong()))
    host._callbacks.stirrups(None, 1)  # as by a display
    assert [type(error) for error in reported] == [Wrong]
    assert rank.stirrups(STIRRUPS).focus == 1
