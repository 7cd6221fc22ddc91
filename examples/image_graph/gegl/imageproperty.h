#pragma once

#include <string>
#include <vector>

/// What a property of an operation holds, as far as a panel of parameters cares.
enum ePropertyKind
{
    ePropertyNumber,
    ePropertyInteger,
    ePropertySeed,
    ePropertyBool,
    ePropertyEnum,
    ePropertyText,
    ePropertyColor,
    ePropertyFile,
    ePropertyOther, ///< buffers, paths, curves and the like: shown, not edited
};

/// One property of an operation, read from the library's own description of it.
struct sImageProperty
{
    std::string m_sName;
    std::string m_sLabel;
    std::string m_sHelp; ///< may be empty
    ePropertyKind m_eKind = ePropertyOther;
    double m_dMin = 0; ///< numbers, integers and seeds only
    double m_dMax = 0;
    std::vector<std::string> m_vNicknames; ///< enumerations only, in the order of their definition
    bool m_bMultiLine = false;
    bool m_bReadOnly = false;
    bool m_bSavesFile = false; ///< the file of the path is written, not read
    /// The operation opens what it is told as soon as it is told; only rendering may do that.
    bool m_bOpensFile = false;
};

/// One operation that the library lists.
struct sOperationInfo
{
    std::string m_sName;
    std::string m_sTitle;
    std::string m_sDescription;
    std::string m_sCategories; ///< separated by colons; may be empty
    bool m_bHasInput = false;
    bool m_bHasAux = false;
    bool m_bHasOutput = false;
    /// The inputs that take a picture: "input", "aux", both in this order, or none.
    std::vector<std::string> m_vInputs;
    bool m_bForPrograms = false;  ///< makes sense only when a program feeds it
    bool m_bNeedsItsFile = false; ///< ends the program when its file does not exist
    std::vector<sImageProperty> m_vProperties;

    /// Null when there is none of that name.
    const sImageProperty* FindProperty(const std::string& name) const;
};

/// What became of a value that was handed to an operation.
struct sWriteResult
{
    enum eOutcome
    {
        eAccepted,
        eClamped, ///< the nearest value in range was taken
        eRefused, ///< the old value stays
    };

    eOutcome m_eOutcome = eAccepted;
    std::string m_sMessage; ///< says why, for the user; empty when the value was taken as it is
};
