#ifndef CWIDGET_PARM_PARMFIELD_H
#define CWIDGET_PARM_PARMFIELD_H

// Before the enumerations below: a style entry has some of the same names within itself.
#include "../style/global.h"
#include "../style/style.h"

#include <QMetaType>
#include <QObject>

/// The part of a parameter field that a setter is meant for, with the numbers of Style::Field.
enum FieldFlag : int {
    FieldName = 0,  ///< the name, at the left
    FieldValue = 1, ///< the value, at the right
    FieldAll = 2    ///< both
};

/// How the width of a parameter field is split, name to value. For Qt's property system, which
/// knows enumerations of classes only.
class CWIDGET_EXPORT CParmField
{
    Q_GADGET
    Q_ENUMS(Proportion)

public:
    /// How the width of a parameter field is split, name to value.
    enum Proportion
#ifndef Q_MOC_RUN // Qt 4's reads no underlying type
        : int
#endif
    {
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
};

Q_DECLARE_METATYPE(CParmField::Proportion)

/// The proportions once more, by the names that applications use.
enum Proportion : int {
    Proportion1To1 = CParmField::Proportion1To1,
    Proportion1To2 = CParmField::Proportion1To2,
    Proportion2To1 = CParmField::Proportion2To1,
    Proportion1To3 = CParmField::Proportion1To3,
    Proportion3To1 = CParmField::Proportion3To1,
    Proportion1To4 = CParmField::Proportion1To4,
    Proportion4To1 = CParmField::Proportion4To1,
    Proportion1To5 = CParmField::Proportion1To5,
    Proportion5To1 = CParmField::Proportion5To1
};

#endif
