#include "slab/frm_slab.h"

#include "slab/frm_curling.h"
#include "slab/frm_damage.h"
#include "slab/frm_dowel.h"
#include "slab/frm_general.h"
#include "slab/frm_optional.h"
#include "slab/frm_panform.h"
#include "slab/frm_slabdata.h"
#include "slab/frm_slabs.h"
#include "slab/frm_solid.h"
#include "store/frm_add.h"

namespace {

/// What is asked for again may be for another data set or another kind of table: it comes up anew.
template <class AForm>
void addAnew(Program& program, const std::string& name) {
    addForm<AForm>(program, name, name);
}

}  // namespace

void addSlabForms(Program& program) {
    addForm<frmPANFORM>(program, "frmPANFORM");
    addForm<frmGeneral>(program, "frmGeneral");
    addAnew<frmCurling>(program, "frmCurling");
    addAnew<frmSlabData>(program, "frmSlabData");
    addAnew<frmSlabs>(program, "frmSlabs");
    addAnew<frmSolid>(program, "frmSolid");
    addAnew<frmOptional>(program, "frmOptional");
    addAnew<frmDowel>(program, "frmDowel");
    addAnew<frmDamage>(program, "frmDamage");
}
