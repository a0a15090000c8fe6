// The memory of the program: the shared variables through which the screens talk,
// and one open data file of each kind. Screens read it at load and write it on OK.
// One object, passed by reference; everything starts out zero or empty.
#pragma once

#include <string>

#include "layered/layered_set.h"
#include "platform/bounded.h"
#include "slab/slab_set.h"

struct Store {
    std::string FileName;      ///< name handed to the next screen; with folder for plots, without for menus
    std::string CurrentFile;   ///< name of the data file open in an input menu
    std::string cmbDirectory;  ///< the data directory, with its trailing "/" as the user typed it
    Bounded<std::string, 20> DataPaths;  ///< history of data directories, most recent first

    int DataLoaded = 0;         ///< 1 once File/New or File/Old was chosen in an input menu
    int NewFile = 0;            ///< 1 after File/New, 0 after File/Old
    int GeneralVisits = 0;      ///< loads of frmGeneral1 since the last File/New or File/Old
    Bounded<int, 5> SetVisits;  ///< clicks by which each data set was created

    int CurLayDS = 0;   ///< current data set of the layered side, 1 to 5
    int CurSlabDS = 0;  ///< current data set of the slab side, 1 to 2
    Integer NPROB = 0;  ///< data sets of the layered file
    Variant SlabNPROB;  ///< data sets of the slab file, 1 or 2

    Integer GeneralOpens = 0;   ///< loads of frmGeneral since the last File/New of the slab side
    Integer ArrangeVisits = 0;  ///< loads of the slab arrangement table since then

    int TableKind = 0;  ///< which table or caller a shared form serves
    int TblLines = 0;
    Integer GridRows = 0, GridCols = 0;             ///< size of the table to be shown
    int MainLines = 0, MainRows = 0, MainCols = 0;  ///< size of the main table
    int CurGroup = 0, CurPeriod = 0, CurLayer = 0, CurSlab = 0;
    int CurTopRow = 0;  ///< first visible row of the main table
    int DIRN = 0;       ///< direction of the contour page: 1 x, 2 y

    std::string HelpText;     ///< the text under construction for a help box
    std::string NL = "\r\n";  ///< line break of all built texts; a lone "\n" after the file name hint

    Bounded<LayeredSet, 5> layered;
    Bounded<SlabSet, 2> slab;
};

/// The directory part of a full path, with its trailing "/": cut behind the tenth "/" after the root; a path
/// with no other "/" gives the root prefix "/".
std::string DirectoryOf(const std::string& path);

/// `name` with ".DAT" appended unless it ends in it, ignoring case.
std::string withDatExtension(const std::string& name);
