#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/quantities.h"

void read_measurements(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    ExperimentalInfo& experiment = *entry.experimental_info;
    // "NOT MEASURED" and the like is what the author had to say.
    const std::string temperature = block.first_decoded_text(cif_tags::temperature);
    experiment.temperature = read_number(temperature);
    if (!experiment.temperature) experiment.temperature_text = temperature;
    experiment.r_factor = read_per_cent(block, cif_tags::r_factor).value_or(0);
}
