/* A host in C: offers the bar texts of its project and ranks them, answers a question by a callback, and lets
 * the user change a stirrup in a panel. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "rankermodule.h"

/* Every call answers a status. */
static void must(rk_status status)
{
    if (status != RK_OK) {
        fprintf(stderr, "status %d: %s\n", (int)status, rk_last_error());
        exit(1);
    }
}

/* What the host keeps of a beam. */
typedef struct beam {
    const char* mark;
    char stirrup[64];
} beam;

/* The module asks for the stirrups of the project. */
static int32_t RK_CALL answer_stirrups(void* user, rk_list answer)
{
    static const char block[] = "A8@100/200(2)\0A10@100/200(4)\0A8@100/200(2)"; /* and a zero byte at the end */
    (void)user;
    return rk_list_add_block(answer, block, sizeof block);
}

/* A panel hands over what the user has confirmed. */
static int32_t RK_CALL take_text(void* user, rk_panel panel, const rk_delivery* delivery)
{
    beam* const changed = user;
    (void)panel;
    if (delivery->text.length >= sizeof changed->stirrup) {
        return 1;
    }
    memcpy(changed->stirrup, delivery->text.data, delivery->text.length);
    changed->stirrup[delivery->text.length] = '\0';
    return 0;
}

/* The candidates with their stamps; an arrow shows the focus. */
static void print_candidates(rk_ranker ranker, rk_list list)
{
    const uint32_t* stamps;
    size_t count, i;
    int32_t focus;
    must(rk_ranker_focus(ranker, &focus));
    must(rk_list_numbers(list, &stamps, &count));
    for (i = 0; i < count; ++i) {
        const char* text;
        must(rk_list_text(list, i, &text, NULL));
        printf("%s%-14s %u\n", (int32_t)i == focus ? "> " : "  ", text, (unsigned)stamps[i]);
    }
}

int main(void)
{
    static const rk_text bars[] = {{"2B22", RK_ZERO_ENDED}, {"2B25", 4}, {"2B22", 4}, {"3B25 1/2", 8}};
    beam edge = {"\xE8\xBE\xB9\xE6\xA2\x81 KL3", "A8@200(2)"}; /* UTF-8, as all texts */
    rk_context host;
    rk_list project, candidates;
    rk_ranker ranker;
    rk_panel panel;
    rk_callbacks callbacks = {0};
    rk_panel_options options = {0};
    const char* version;

    must(rk_version(&version, NULL));
    printf("module %s\n", version);
    must(rk_context_create(&host));
    callbacks.struct_size = sizeof callbacks;
    callbacks.user = &edge;
    callbacks.stirrups = answer_stirrups;
    callbacks.deliver = take_text;
    must(rk_context_set_callbacks(host, &callbacks));

    /* Top bars of a beam 300 mm wide that needs 1000 mm2: the project's texts in one call, then the table. */
    must(rk_list_create(host, &project));
    must(rk_list_create(host, &candidates));
    must(rk_list_add_texts(project, bars, sizeof bars / sizeof bars[0]));
    must(rk_ranker_create(host, RK_BARS, &ranker));
    must(rk_ranker_set_bars(ranker, 300, 1000, "1", RK_ZERO_ENDED));
    must(rk_ranker_run(ranker, project, candidates));
    must(rk_ranker_add_table_rows(ranker, candidates));
    printf("bars of %s:\n", edge.mark);
    print_candidates(ranker, candidates);
    must(rk_ranker_destroy(ranker));

    /* Stirrups: without a list the ranker asks the callback. */
    must(rk_ranker_create(host, RK_STIRRUP, &ranker));
    must(rk_ranker_run(ranker, NULL, candidates));
    printf("stirrups of %s, now %s:\n", edge.mark, edge.stirrup);
    print_candidates(ranker, candidates);

    /* The panel: row "100" of the tight spacings, then the right button, which confirms. */
    options.struct_size = sizeof options;
    options.kind = RK_STIRRUP_PANEL;
    options.route = RK_TO_HOST;
    must(rk_panel_create(host, &options, &panel));
    must(rk_panel_set_text(panel, edge.stirrup, RK_ZERO_ENDED));
    must(rk_panel_show(panel, 400, 300));
    must(rk_panel_click(panel, 1356, 1, RK_CLICK));
    must(rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    printf("confirmed: %s\n", edge.stirrup);

    if (rk_list_add(candidates, "\xF0\x9F\x8F\x97", RK_ZERO_ENDED) != RK_OK) {
        printf("refused: %s\n", rk_last_error());
    }
    return rk_context_destroy(host) == RK_OK ? 0 : 1; /* with all that was made in it */
}
