// Plot files of the layered solver, by hand: one of each kind of page.
#pragma once

/// Three linear layers under dual-tandem wheels, English units; points at the surface, inside a layer, on an
/// interface and in the subgrade.
inline const char* const linearTandem = R"(1
"Three layers, dual tandem"
1 0 1 1
3 4 0
4 8.5
.35 .3 .45
0 2 4 20
500000 30000 7500
2 4.5237 100
3 48 13.5
0 0 0 6.75 24 6.75
)";

/// Granular base on a clay subgrade under one wheel: two constants for layer 2, four for layer 3.
inline const char* const nonlinear = R"(1
"Nonlinear, single wheel"
2 0 1 1
3 1 0
3 12
.4 .35 .45
15
400000 20000 8000
0 6 75
2 0 8
2
2 0 3 1
7.5 16
0 0 0 .5
145 135 115
.5 .6
6.2 1110 178 .8
40 8000 3000 15000 5600
)";

/// Seven creep compliances on a linear subgrade.
inline const char* const viscoelastic = R"(1
"Viscoelastic surface"
3 0 1 1
2 1 0
8 .4 .45
8
0 10000
0 6 80
1 0
.1 1 1
7
.001 .003 .01 .03 .1 .3 1
.113 70
1.2E-6 2.3E-6 4.5E-6 9.1E-6 1.8E-5 3.3E-5 5.0E-5
85.5
)";

/// Granular base between a viscoelastic surface with nine creep compliances and a linear subgrade, SI.
inline const char* const combined = R"(1
"Combined, two periods"
4 0 2 1
3 1 1
20 30
.4 .35 .45
10
0 150000 50000
0 140000 48000
1 15 600
2 0 30
0 0 0 15
1
2 0
35
0 0 15 .3
22 21 18
.5 .6
0 30000 0 28000
.1 1 1
9
.001 .003 .01 .03 .1 .3 1 3 10
.2034 21
1.2E-6 2.3E-6 4.5E-6 9.1E-6 1.8E-5 3.3E-5 5.0E-5 7E-5 9E-5
25 12.5
)";

/// Fatigue at the bottom of layer 1, deformation at the top of layer 2; two periods, a single wheel and a
/// tandem, whose further axles add to the ratios.
inline const char* const damage = R"(1
"Damage analysis"
1 1 2 2
2 9 0
8 .4 .45
500000 10000 400000 8000
0 5 80
1 0
2 4.52 100
1 48 13.5
0 6.75
1 1
73000 1000.5 73000 2000
2
8 8.0001
.01 .02
.03 .04 .001 .002
.1 .2
.3 .4 .01 .02
1 1
.4410005 .6825 1.465201
)";
