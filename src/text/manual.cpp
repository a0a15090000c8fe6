#include "text/manual.h"

const std::vector<ManualSection>& manualSections() {
    static const std::vector<ManualSection> sections = {
        {"Use of Main Screen", "manual_main_screen"},
        {"Use of Editor Screen", "manual_editor"},
        {"Input Parameters for TOLSTRAT", "manual_layered_input"},
        {"Input Parameters for TOLPLATE", "manual_slab_input"},
        {"Output Parameters for TOLSTRAT", "manual_layered_output"},
        {"Output Parameters for TOLPLATE", "manual_slab_output"},
        {"Data File for TOLSTRAT", "manual_layered_file"},
        {"Data File for TOLPLATE", "manual_slab_file"},
        {"Examples for TOLSTRAT", "manual_layered_examples"},
        {"Examples for TOLPLATE", "manual_slab_examples"},
    };
    return sections;
}
