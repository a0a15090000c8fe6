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

void addSlabForms(Program& program) {
    addForm<frmPANFORM>(program, "frmPANFORM");
    addForm<frmGeneral>(program, "frmGeneral");
    addForm<frmCurling>(program, "frmCurling");
    addForm<frmSlabData>(program, "frmSlabData");
    // The same board serves X and Y: asked for again, it comes up anew.
    addForm<frmSlabs>(program, "frmSlabs", "frmSlabs");
    addForm<frmSolid>(program, "frmSolid");
    addForm<frmOptional>(program, "frmOptional");
    addForm<frmDowel>(program, "frmDowel");
    addForm<frmDamage>(program, "frmDamage");
}
