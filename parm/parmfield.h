#ifndef CWIDGET_PARM_PARMFIELD_H
#define CWIDGET_PARM_PARMFIELD_H

/// The part of a parameter field that a setter is meant for, with the numbers of Style::Field.
enum FieldFlag : int {
    FieldName = 0,  ///< the name, at the left
    FieldValue = 1, ///< the value, at the right
    FieldAll = 2    ///< both
};

/// How the width of a parameter field is split, name to value.
enum Proportion : int {
    Proportion1To1 = 0,
    Proportion1To2 = 1,
    Proportion2To1 = 2,
    Proportion1To3 = 3,
    Proportion3To1 = 4,
    Proportion1To4 = 5,
    Proportion4To1 = 6,
    Proportion1To5 = 7,
    Proportion5To1 = 8
};

#endif
