#include "output/Output.h"

std::vector<Output> outputs_with(const std::vector<Output>& own_forms) {
    std::vector<Output> outputs;
    for (const RichTextTarget& target : rich_text_targets()) {
        outputs.push_back({target.name, target.help, &target});
    }
    outputs.insert(outputs.end(), own_forms.begin(), own_forms.end());
    return outputs;
}
