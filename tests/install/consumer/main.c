/* A host in C outside the source tree: ranks once and reads a picker. */
#include <stdio.h>

#include "rankermodule.h"

int main(void)
{
    rk_panel_options options = {0};
    rk_context host;
    rk_ranker ranker;
    rk_list candidates;
    rk_panel picker;
    size_t count = 0;
    char text[16] = "";
    options.struct_size = sizeof options;
    options.kind = RK_HORIZONTAL_PICKER;
    if (rk_context_create(&host) != RK_OK || rk_list_create(host, &candidates) != RK_OK ||
        rk_ranker_create(host, RK_STIRRUP, &ranker) != RK_OK ||
        rk_ranker_run(ranker, NULL, candidates) != RK_OK || rk_list_count(candidates, &count) != RK_OK ||
        rk_panel_create(host, &options, &picker) != RK_OK ||
        rk_panel_set_text(picker, "B8@150", RK_ZERO_ENDED) != RK_OK ||
        rk_panel_result(picker, 0, text, sizeof text, NULL) != RK_OK) {
        fprintf(stderr, "%s\n", rk_last_error());
        return 1;
    }
    printf("%d %s\n", count > 0, text);
    return rk_context_destroy(host) == RK_OK ? 0 : 1;
}
