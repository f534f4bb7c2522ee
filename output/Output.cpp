#include "output/Output.h"

std::vector<Output> outputs_with(const char* own_name, const char* own_help) {
    std::vector<Output> outputs;
    for (const RichTextTarget& target : rich_text_targets()) {
        outputs.push_back({target.name, target.help, &target});
    }
    outputs.push_back({own_name, own_help, nullptr});
    return outputs;
}
