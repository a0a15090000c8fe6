// Plot files of the slab solver, by hand.
#pragma once

/// One slab of two layers on a liquid foundation, English units: two loaded areas, one nodal force, symmetry
/// about both axes.
inline const char* const oneSlab = R"(1
"One slab, two layers"
0 0 1 1
1 0
4 3 0 0 0 0
2 4 3 0
0 12.25 16 40
0 10 30
8 .15 4000000 6 .2 1500000
2
1 0 0 0
1 0 10 0 10 100
1 10 14 0 10 50
2 500
1
100
12 1
1 2 -3 4
5 6 7 8
9 10 11 12
13 14 15 16
17 18 19 20
21 22 23 24
25 26 27 28
29 30 31 32
33 34 35 36
37 38 39 40
41 42 43 44
45.5 46 47 48
5 -210.1234 0
1 -300 2 250.5 3 -10 4 20
6 130.75 0
1 -150 2 125 3 -5 4 10
)";

/// Two slabs of one layer with a joint, SI units, on three layers; two periods and two load groups of a
/// damage analysis; the second group has forces only. Symmetry about the x axis, no stress table.
inline const char* const twoSlabsDamage = R"(1
"Two slabs, damage"
2 1 2 2
2 1
3 2 0 1 0 0 3 2 1 0 0 0
1 1 0 1
0 50 100 0 60
0 50.5 100 0 60
20.32 .15 27580000
1 0
3 0 0 2
2 0 20 10 30 500
2 40 7 -15.5 8 20
1 .8
3
15 30
200000 100000.5 50000
.35 .35 .45
1000 2000 3000 4000
7 1500 6 .01
8 1400 6 .02
9 1300 6 .03
12 -1200 6 .04
20.5
)";
