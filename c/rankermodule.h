/* rankermodule.h: the module for hosts written in C, and in whatever calls C. The one header, plain C99.
 *
 * Results. Every function answers a status, RK_OK or what was wrong, and leaves its outputs alone when it
 * is not RK_OK (RK_TOO_SMALL excepted, which tells the length). No mistake of a caller ends the process: a
 * null pointer, a handle that is none, is of another kind or was destroyed, an index outside its list, a
 * text that is none, all give a status. rk_last_error tells more.
 *
 * Handles are numbers in the shape of pointers, never reused and never to be followed. Null is no handle.
 * What was made in a context goes with it. Destroying inside a callback is allowed, also of the very object
 * at work.
 *
 * Texts are given as pointer and length in bytes, or zero-terminated with the length RK_ZERO_ENDED. Null
 * with length 0 is the empty text. They are UTF-8, or raw GBK bytes in a context that was set to them; no
 * text holds a zero byte. What GBK does not know gives RK_BAD_TEXT and changes nothing. A text that comes
 * out goes into the caller's buffer, closed by a zero byte; *length is its length without that. With a
 * buffer that is too small (null with size 0 is the way to ask) the answer is RK_TOO_SMALL, the buffer is
 * left alone, and *length + 1 bytes are needed. The length may be null. Texts and rows that come out as
 * pointers are borrowed; each function says for how long.
 *
 * Callbacks belong to a context, so two hosts in a process do not meet: the module's own callback slots
 * hold the context's callbacks while a call of that context runs, and before and after it, and inside each
 * callback, what they held before. Callbacks run inside the call that caused them, in its thread; where a
 * display shows the panels and feeds events to them, also inside such an event. They may call everything
 * here. They answer 0, or another number to say that they failed, which makes the call that caused them
 * answer RK_CALLBACK. They must return: no exception, no jump out of them.
 *
 * Threads. Any thread may call; one lock lets in one thread at a time, and callbacks run under it. So a
 * callback must not wait for another thread that calls this library. Panels have one focus and one
 * display in the process: call for them from one thread, that of the user interface.
 *
 * What never changes within libRankerC.so.1 (RankerC.dll): the functions, their parameters and the meaning
 * of what they answer, the numbers of all constants, the members of the structures in their order. What is
 * added raises RK_INTERFACE. Structures with struct_size grow at their end: the caller writes sizeof there,
 * and the library neither reads nor writes beyond it. New statuses may come; take any but RK_OK as not
 * done. The words of rk_last_error may change. The order and content of ranked lists is the module's
 * business and follows its version.
 *
 * Units: mm, mm2, pixels of the screen, bytes. Indices begin at 0, and -1 stands for none.
 */
#ifndef RANKERMODULE_H
#define RANKERMODULE_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define RK_CALL __cdecl
#if defined(RANKER_C_BUILD)
#define RK_API __declspec(dllexport)
#else
#define RK_API __declspec(dllimport)
#endif
#else
#define RK_CALL
#if defined(__GNUC__)
#define RK_API __attribute__((visibility("default")))
#else
#define RK_API
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What this header knows, to be compared with what rk_version tells of the library. */
#define RK_INTERFACE 1

/* As a length: the text ends with its first zero byte. */
#define RK_ZERO_ENDED ((size_t)-1)

typedef int32_t rk_status;
enum {
    RK_OK = 0,
    RK_BAD_ARGUMENT = 1, /* a null pointer, or a value that the parameter does not have */
    RK_BAD_HANDLE = 2,   /* null, of another kind, or destroyed */
    RK_BAD_INDEX = 3,    /* no such text, row, control or group */
    RK_BAD_TEXT = 4,     /* no UTF-8, no GBK, a character that the other one lacks, or a zero byte inside */
    RK_TOO_SMALL = 5,    /* the buffer; the length tells what it needs */
    RK_NOT_DONE = 6,     /* the rule does not apply to this text, or the control refuses */
    RK_CALLBACK = 7,     /* a callback failed; the call itself has been carried out without its answer */
    RK_NO_MEMORY = 8,
    RK_FAILED = 9 /* anything else; the message tells */
};

/* What went wrong in this thread's last call that was not RK_OK, in UTF-8; empty if none was. Good until
 * this thread's next such call. */
RK_API const char* RK_CALL rk_last_error(void);

/* The module's version, "0.1.0", good for as long as the process runs, and the RK_INTERFACE of the library.
 * Either may be null. */
RK_API rk_status RK_CALL rk_version(const char** text, int32_t* number);

typedef struct rk_context_tag* rk_context; /* a host: its callbacks, its encoding, what it made */
typedef struct rk_list_tag* rk_list;       /* texts in order, and numbers */
typedef struct rk_ranker_tag* rk_ranker;
typedef struct rk_panel_tag* rk_panel; /* a panel or a picker */

typedef struct rk_text {
    const char* data;
    size_t length;
} rk_text;

/* ---- contexts ---- */

enum { RK_UTF8 = 0, RK_GBK = 1 };

RK_API rk_status RK_CALL rk_context_create(rk_context* context);
/* With all its lists, rankers and panels. */
RK_API rk_status RK_CALL rk_context_destroy(rk_context context);
/* RK_UTF8, as at first, or RK_GBK: of all texts from here on, those of the callbacks as well. GBK bytes are
 * taken and given as they are, without a look at them. */
RK_API rk_status RK_CALL rk_context_set_encoding(rk_context context, int32_t encoding);

/* How a panel hands over its text, chosen when it is made. */
enum {
    RK_TO_ITEM = 0,   /* as to an item of a property grid: one text a confirmation */
    RK_TO_PARENT = 1, /* as to a drawing's window: code 0 section, 1 stirrup, 7 elevation, 8 name, 20 to 24
                         a group of bars */
    RK_TO_HOST = 2 /* as to the host's own data: bars as codes 0, 8 and 9, through, torsion and side bars */
};

typedef struct rk_delivery {
    size_t struct_size;
    int32_t route; /* RK_TO_... */
    int32_t mode;  /* as the module tells it: 1 to a parent, 0 or 2 to host data; 0 to an item */
    int32_t code;  /* what the text is, as above; 0 to an item */
    rk_text text;
} rk_delivery;

/* What the module asks the host, and what it tells. A null pointer counts as a callback that adds nothing.
 * Answers go into the list given, by rk_list_add and its like; that list is gone when the callback returns.
 */
typedef struct rk_callbacks {
    size_t struct_size;
    void* user; /* passed to each of them, never looked into */
    /* Beam types in use, such as "KL". The list still holds what the ranker's last run left in it. */
    int32_t(RK_CALL* beam_types)(void* user, rk_list answer);
    /* For a beam type the suffixes in use, with brackets, as texts, and the serials as numbers. */
    int32_t(RK_CALL* beam_numbers)(void* user, rk_list answer, const char* type, size_t length);
    int32_t(RK_CALL* sections)(void* user, rk_list answer);
    int32_t(RK_CALL* elevations)(void* user, rk_list answer);
    int32_t(RK_CALL* stirrups)(void* user, rk_list answer);
    /* Bar texts for the kind that rk_ranker_set_bars was given. */
    int32_t(RK_CALL* bars)(void* user, rk_list answer, const char* kind, size_t length);
    /* A text that was confirmed in a panel, which is hidden by then. */
    int32_t(RK_CALL* deliver)(void* user, rk_panel panel, const rk_delivery* delivery);
    /* Something to show to the user, such as why a name is not complete. Not called where a display shows
     * the windows, which shows it itself. */
    int32_t(RK_CALL* message)(void* user, const char* text, size_t length);
} rk_callbacks;

/* Copies them; null takes them away. */
RK_API rk_status RK_CALL rk_context_set_callbacks(rk_context context, const rk_callbacks* callbacks);

/* ---- texts ---- */

/* UTF-8 into GBK bytes (code page 936) and back. */
RK_API rk_status RK_CALL rk_gbk_from_utf8(const char* text, size_t text_length, char* buffer, size_t size,
                                          size_t* length);
RK_API rk_status RK_CALL rk_utf8_from_gbk(const char* text, size_t text_length, char* buffer, size_t size,
                                          size_t* length);

/* What a text is. Its fields, in this order:
 *   RK_NAME       "KL3(2A)"         type, serial, span, cantilever
 *   RK_SECTION    "300x600"         separator, width, height
 *   RK_STIRRUP    "A10@100/200(2)"  grade, diameter, tight spacing, tight legs, spacing, legs
 *   RK_BAR_PIECE  "6B25 2/4;"       count, grade, diameter, upper, lower, terminator
 * The others, RK_BARS "2B22+3B25/2B22", RK_ELEVATION "-0.300", RK_WALL_BARS "A10@100/200", have no fields.
 */
enum {
    RK_NAME = 0,
    RK_SECTION = 1,
    RK_ELEVATION = 2,
    RK_STIRRUP = 3,
    RK_BARS = 4,
    RK_BAR_PIECE = 5,
    RK_WALL_BARS = 6
};

/* Puts the fields of a text into the list, which loses what it held; a field that the text lacks is empty.
 * RK_NOT_DONE for a text that is not cut at all: a name without "L", an empty section, a stirrup without
 * "@" and "-" or without grade letter. Of a bar piece the fields are those that the lists of the bar panel
 * show for it. */
RK_API rk_status RK_CALL rk_text_read(rk_context context, int32_t what, const char* text,
                                      size_t text_length, rk_list fields);
/* Writes the text of so many fields, which must be as many as its kind has. RK_NOT_DONE when what is needed
 * is empty: of a name span and cantilever both, of a stirrup grade, diameter, spacing or legs. Stirrup
 * fields are trimmed, and legs may come with or without their brackets; tight legs without tight spacing
 * are left out. */
RK_API rk_status RK_CALL rk_text_compose(rk_context context, int32_t what, const rk_text* fields,
                                         size_t count, char* buffer, size_t size, size_t* length);

/* The numbers of a text; what it lacks, or has no place for, is 0. */
typedef struct rk_measures {
    size_t struct_size;
    double level;          /* m, of an elevation */
    int32_t serial;        /* of a name */
    int32_t width;         /* mm, of a section */
    int32_t height;        /* mm, of a section */
    int32_t count;         /* of bars, the first term */
    int32_t diameter;      /* mm, of bars, stirrups and wall bars */
    int32_t tenths;        /* of a wall bar's diameter, 0 to 9 */
    int32_t grade;         /* of wall bars, 1 to 4 for A to D */
    int32_t tight_spacing; /* mm, of stirrups and wall bars; wall bars with one spacing have it here */
    int32_t spacing;       /* mm */
    int32_t legs;          /* of stirrups */
} rk_measures;

/* Of all kinds but a bar piece. RK_NOT_DONE for wall bars without grade or diameter. */
RK_API rk_status RK_CALL rk_text_measure(rk_context context, int32_t what, const char* text,
                                         size_t text_length, rk_measures* measures);
/* -1, 0 or 1: the order in which the rankers put bars or stirrups, RK_BARS or RK_STIRRUP alone. */
RK_API rk_status RK_CALL rk_text_compare(rk_context context, int32_t what, const char* a, size_t a_length,
                                         const char* b, size_t b_length, int32_t* order);

/* The parts of a beam name as the name ranker sees it: "KL" and "(2A)" of "KL3(2A)", empty for what is not
 * there. Into the list as two texts. */
RK_API rk_status RK_CALL rk_name_parts(rk_context context, const char* text, size_t text_length,
                                       rk_list parts);
/* The first piece of a bar text, without one leading "*", "N" or "G". */
RK_API rk_status RK_CALL rk_bars_head(rk_context context, const char* text, size_t text_length,
                                      char* buffer, size_t size, size_t* length);
/* 1 when the first piece of a has at least as many bars as that of b, of the same diameter, else 0. */
RK_API rk_status RK_CALL rk_bars_same_diameter(rk_context context, const char* a, size_t a_length,
                                               const char* b, size_t b_length, int32_t* same);
/* 1 when two pieces hold the same bars whatever stands around them, else 0. */
RK_API rk_status RK_CALL rk_bars_same_essence(rk_context context, const char* a, size_t a_length,
                                              const char* b, size_t b_length, int32_t* same);
/* The stirrup with a tight zone of spacing 100: "A8@100/200(2)" for "A8@200(2)". */
RK_API rk_status RK_CALL rk_stirrup_tight_form(rk_context context, const char* text, size_t text_length,
                                               char* buffer, size_t size, size_t* length);

/* Keys of the elevation keypad besides the digits, which are the characters '0' to '9'. */
enum { RK_KEY_POINT = '.', RK_KEY_MINUS = '-', RK_KEY_BRACKETS = '(', RK_KEY_BACK = 8 };
/* What a key makes of an elevation; RK_NOT_DONE where it does not apply, such as a second point. */
RK_API rk_status RK_CALL rk_elevation_key(rk_context context, const char* text, size_t text_length,
                                          int32_t key, char* buffer, size_t size, size_t* length);

/* ---- lists ---- */

/* Texts are converted when they come in, so a list that is kept serves many runs at the price of one.
 * Numbers are apart from the texts: a ranked list has the stamps of its texts there, any other what was
 * added. Pointers that a list gives are good until the list is changed or destroyed. */
RK_API rk_status RK_CALL rk_list_create(rk_context context, rk_list* list);
RK_API rk_status RK_CALL rk_list_destroy(rk_list list);
RK_API rk_status RK_CALL rk_list_clear(rk_list list); /* texts and numbers */

RK_API rk_status RK_CALL rk_list_add(rk_list list, const char* text, size_t text_length);
/* All of them, or none if one is bad; rk_last_error names the first that is. */
RK_API rk_status RK_CALL rk_list_add_texts(rk_list list, const rk_text* texts, size_t count);
/* The same with all texts in one block, each ended by a zero byte; size counts all zero bytes. */
RK_API rk_status RK_CALL rk_list_add_block(rk_list list, const char* block, size_t size);
RK_API rk_status RK_CALL rk_list_add_numbers(rk_list list, const uint32_t* numbers, size_t count);

RK_API rk_status RK_CALL rk_list_set(rk_list list, size_t index, const char* text, size_t text_length);
RK_API rk_status RK_CALL rk_list_remove(rk_list list, size_t index, size_t count); /* texts alone */

RK_API rk_status RK_CALL rk_list_count(rk_list list, size_t* count);
RK_API rk_status RK_CALL rk_list_text(rk_list list, size_t index, const char** text, size_t* length);
/* So many texts from the first on; those past the end give RK_BAD_INDEX, and nothing is written. */
RK_API rk_status RK_CALL rk_list_texts(rk_list list, size_t first, size_t count, rk_text* texts);
/* All texts in one block, each ended by a zero byte. */
RK_API rk_status RK_CALL rk_list_block(rk_list list, const char** block, size_t* size);
/* All numbers. */
RK_API rk_status RK_CALL rk_list_numbers(rk_list list, const uint32_t** numbers, size_t* count);

/* ---- tables ---- */

typedef struct rk_bar_row {
    size_t struct_size;
    int32_t width;   /* nominal beam width, mm */
    int32_t area;    /* steel, mm2 */
    rk_text through; /* top through bars, "2B18" */
    rk_text total;   /* complete top bars, "2B18+2B20" */
    rk_text bottom;  /* "3B20" */
} rk_bar_row;

typedef struct rk_stirrup_row {
    size_t struct_size;
    int32_t width; /* mm */
    int32_t grade; /* of the concrete: 20, 25, 30, 35 or 40 */
    double ratio;  /* stirrup ratio figure */
    rk_text plain; /* "A8@200(2)" */
    rk_text tight; /* "A8@100/200(2)" */
} rk_stirrup_row;

/* The rows by width, or by grade, in the table's order. Their texts are ASCII and good for as long as the
 * process runs. */
RK_API rk_status RK_CALL rk_bar_table_count(size_t* count);
RK_API rk_status RK_CALL rk_bar_table_row(size_t index, rk_bar_row* row);
RK_API rk_status RK_CALL rk_stirrup_table_count(size_t* count);
RK_API rk_status RK_CALL rk_stirrup_table_row(size_t index, rk_stirrup_row* row);

/* What a look-up in the bar table wants. The last one wants the complete top bars on given through bars,
 * which come first in the list. */
enum { RK_THROUGH_BARS = 0, RK_TOTAL_BARS = 1, RK_BOTTOM_BARS = 2, RK_TOTAL_ON_THROUGH = 3 };
/* Appends the texts for a beam width in mm and a steel area in mm2, each only if the list does not hold it
 * yet. The through bars are read for RK_TOTAL_ON_THROUGH alone. *nearest, which may be null, is the index,
 * among the rows of that width, of the one nearest in area; -1 for none, and always for bottom bars. */
RK_API rk_status RK_CALL rk_bar_table_find(rk_context context, int32_t what, int32_t width, int32_t area,
                                           const char* through, size_t through_length, rk_list list,
                                           int32_t* nearest);
/* Appends what is enough for a width in mm, a concrete grade and a seismic class, 1 to 4. RK_NOT_DONE, with
 * nothing appended, for a grade or a class that the table has not. */
RK_API rk_status RK_CALL rk_stirrup_table_find(rk_context context, int32_t width, int32_t grade,
                                               int32_t seismic, rk_list list);

/* ---- rankers ---- */

/* The kind is RK_NAME, RK_SECTION, RK_ELEVATION, RK_STIRRUP or RK_BARS. */
RK_API rk_status RK_CALL rk_ranker_create(rk_context context, int32_t kind, rk_ranker* ranker);
RK_API rk_status RK_CALL rk_ranker_destroy(rk_ranker ranker);

/* Width in mm, steel area in mm2, and which bars: "1" to "4" top bars, "5.1" and "5.2" bottom bars, any
 * other text complete top bars on these through bars, such as "2B20". Width 0, area 0 and the empty text at
 * first. */
RK_API rk_status RK_CALL rk_ranker_set_bars(rk_ranker ranker, int32_t width, int32_t area, const char* kind,
                                            size_t kind_length);
/* Width in mm, seismic class 1 to 4, concrete grade, for table rows alone. All 0 at first. */
RK_API rk_status RK_CALL rk_ranker_set_stirrups(rk_ranker ranker, int32_t width, int32_t seismic,
                                                int32_t grade);
/* 2 at first; other numbers change the guesses. Elevations have none: RK_BAD_ARGUMENT. */
RK_API rk_status RK_CALL rk_ranker_set_project_kind(rk_ranker ranker, int32_t kind);

/* One run: the candidates, best first, take the place of what the list held. Bars and stirrups have a stamp
 * for each in the list's numbers: 0 for a guess; for a text of the project 1, of bars five times its uses.
 *
 * With a list of the project's texts the ranker asks no callback and takes them: of names whole names, such
 * as "KL3(2A)". Null as the project asks the context's callbacks. One list may be project and result. */
RK_API rk_status RK_CALL rk_ranker_run(rk_ranker ranker, rk_list project, rk_list result);
/* Bars and stirrups: appends the table's rows to the list of the ranker's last run, with stamp 0. */
RK_API rk_status RK_CALL rk_ranker_add_table_rows(rk_ranker ranker, rk_list result);
/* Index of the candidate to put the focus on: of bars and stirrups the last that the project supports, of
 * names the first; -1 for none, and always for sections and elevations. */
RK_API rk_status RK_CALL rk_ranker_focus(rk_ranker ranker, int32_t* index);
/* Names: remembers a name. *step, which may be null, is the step from the serial of the one before: the new
 * serial when it is higher, negated when it is lower, the old step when it is the same. */
RK_API rk_status RK_CALL rk_ranker_set_previous_name(rk_ranker ranker, const char* name, size_t name_length,
                                                     int32_t* step);

/* ---- panels and pickers ---- */

enum {
    RK_NAME_PANEL = 0,
    RK_SECTION_PANEL = 1,
    RK_ELEVATION_PANEL = 2,
    RK_STIRRUP_PANEL = 3,
    RK_BAR_PANEL = 4,
    RK_HORIZONTAL_PICKER = 5, /* wall bars "A10@100/200", to an item alone */
    RK_VERTICAL_PICKER = 6    /* "B16", to an item alone */
};

typedef struct rk_panel_options {
    size_t struct_size;
    int32_t kind;
    int32_t route;    /* RK_TO_...; the name panel knows no host data */
    int32_t bar_kind; /* bar panel, what it is open for: -1 all groups, 0 to 4 one group, 5 and 6 the end
                         bars at the left and the right, 7 and 8 a top or bottom annotation with torsion and
                         side bars; any other number counts as -1 */
} rk_panel_options;

/* Makes it with its window, hidden. */
RK_API rk_status RK_CALL rk_panel_create(rk_context context, const rk_panel_options* options,
                                         rk_panel* panel);
/* Its own receiver may; it hands over nothing more then. */
RK_API rk_status RK_CALL rk_panel_destroy(rk_panel panel);

/* The text for the next use: into the controls as far as it can be read. The bar panel starts empty each
 * time and takes the empty text alone: RK_BAD_ARGUMENT. A picker that has delivered takes no press before
 * its next text. */
RK_API rk_status RK_CALL rk_panel_set_text(rk_panel panel, const char* text, size_t text_length);
/* Shows it above all others with its corner at a place on the screen; hides it. */
RK_API rk_status RK_CALL rk_panel_show(rk_panel panel, int32_t x, int32_t y);
RK_API rk_status RK_CALL rk_panel_hide(rk_panel panel);

enum {
    RK_THE_PANEL = 0,  /* as a control's id: the panel itself */
    RK_THE_FOCUS = -2, /* the control of the panel that has the focus, else the panel itself */
    RK_LABEL = -1      /* the id of labels that nobody asks for */
};

/* Messages, with the numbers that Windows developers know. */
enum {
    RK_KEY_DOWN = 0x100,
    RK_KEY_UP = 0x101,
    RK_CHARACTER = 0x102,
    RK_MOUSE_MOVE = 0x200,
    RK_LEFT_DOWN = 0x201,
    RK_LEFT_UP = 0x202,
    RK_LEFT_DOUBLE = 0x203,
    RK_RIGHT_DOWN = 0x204,
    RK_RIGHT_UP = 0x205,
    RK_RIGHT_DOUBLE = 0x206,
    RK_WHEEL = 0x20A
};

typedef struct rk_event {
    size_t struct_size;
    int32_t message;
    int32_t control; /* id of the control that gets it */
    int32_t x;       /* of mouse events: pixels from the control's corner, within 32767 of it */
    int32_t y;
    uint32_t key; /* of a key its number, as on Windows (27 is Esc); of a character its code point, in a
                     context of GBK bytes one byte */
    int32_t turn; /* of the wheel: 120 a notch, above 0 away from the user */
} rk_event;

/* Offers an event to the panel and, if that does not finish it, hands it to the control. *finished, which
 * may be null, tells which. A hidden panel gets nothing. A right press confirms, Esc dismisses. */
RK_API rk_status RK_CALL rk_panel_event(rk_panel panel, const rk_event* event, int32_t* finished);

enum { RK_CLICK = 0, RK_DOUBLE_CLICK = 1, RK_RIGHT_CLICK = 2 };
/* What a hand does with the mouse, by events as above: on a row of a list, brought into view before, or
 * with row -1 in the middle of a control, or of the panel. RK_NOT_DONE while the panel is hidden. */
RK_API rk_status RK_CALL rk_panel_click(rk_panel panel, int32_t control, int32_t row, int32_t how);
/* The user has edited the text of an edit box into this one, as a toolkit's own box tells. RK_NOT_DONE for
 * what the box refuses. */
RK_API rk_status RK_CALL rk_panel_edit(rk_panel panel, int32_t control, const char* text,
                                       size_t text_length);

typedef struct rk_rect {
    int32_t left;
    int32_t top;
    int32_t right; /* just outside */
    int32_t bottom;
} rk_rect;

typedef struct rk_panel_state {
    size_t struct_size;
    int32_t visible;
    int32_t focus;    /* id of the control with the focus, RK_THE_PANEL when none of this panel has it */
    int32_t controls; /* how many, labels included */
    int32_t groups;   /* texts that rk_panel_result tells: 5 of the bar panel, else 1 */
    int32_t
        new_piece; /* bar panel: 1 when a click composes a new piece, 0 when it rewrites the chosen one */
    rk_rect place; /* on the screen */
} rk_panel_state;

RK_API rk_status RK_CALL rk_panel_get_state(rk_panel panel, rk_panel_state* state);
/* The text as composed so far; of the bar panel one of its groups; of a picker the value that its item has.
 */
RK_API rk_status RK_CALL rk_panel_result(rk_panel panel, int32_t group, char* buffer, size_t size,
                                         size_t* length);

enum { RK_A_LABEL = 0, RK_AN_EDIT_BOX = 1, RK_A_LIST_BOX = 2, RK_A_BUTTON = 3 };

typedef struct rk_control {
    size_t struct_size;
    int32_t id;
    int32_t kind;
    int32_t visible; /* 0 also while the panel is hidden */
    int32_t enabled;
    rk_rect place;     /* in the panel's client area, which is all of the panel */
    int32_t rows;      /* of a list box, else 0 */
    int32_t selection; /* row of a list box, -1 for none */
    int32_t top;       /* the first row of a list box in view */
    rk_text text;      /* caption, or what an edit box holds; good until the next call for this panel */
} rk_control;

/* A control by its number, in the order in which Tab visits them, or by its id. */
RK_API rk_status RK_CALL rk_panel_control_at(rk_panel panel, int32_t number, rk_control* control);
RK_API rk_status RK_CALL rk_panel_control(rk_panel panel, int32_t id, rk_control* control);
/* The rows of a list box, which take the place of what the list held. */
RK_API rk_status RK_CALL rk_panel_rows(rk_panel panel, int32_t id, rk_list rows);
/* Where a row is, in the list box's client area; outside of it for a row out of view. */
RK_API rk_status RK_CALL rk_panel_row_place(rk_panel panel, int32_t id, int32_t row, rk_rect* place);

#ifdef __cplusplus
}
#endif

#endif
