#pragma once

#include <simpledataelement.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// A text element whose value is one of a set of values, each with a text for display.
class INSPECTOR_EXPORT CEnumDataElement : public CSimpleDataElement
{
public:
    /// The values and their texts. Many elements may share one definition.
    struct INSPECTOR_EXPORT sEnumDefinition
    {
        /// Display text by value; what a widget paints.
        std::map<std::string, std::string> m_mapDisplay;
        /// Every (value, display text) that was added, in that order; what a list offers.
        std::vector<std::pair<std::string, std::string>> m_vEntries;
    };

    CEnumDataElement();
    /// A copy of an element that owns its definition owns the same one: all but one of such copies
    /// must let go of it (they may not be destroyed or given another definition before).
    CEnumDataElement(const CEnumDataElement& other);
    /// As for the copy; a definition that this element owned before is not freed.
    CEnumDataElement& operator=(const CEnumDataElement& other);
    /// Deletes the definition if the element owns it.
    ~CEnumDataElement() override;

    const char* GetType() override; ///< "qt.simple.enum"

    /// The display text of \p value; empty when the definition does not have it.
    virtual void GetDisplayString(const char* value, std::string& out);

    /// Starts a new, empty definition of the element's own.
    void CreateEnum();
    /// Uses a definition of the caller, who keeps it and must keep it alive; null is allowed.
    /// A definition that the element owned before is deleted; one that it owned and is given back
    /// to it here passes into the caller's ownership.
    void SetExternalEnum(sEnumDefinition* definition);
    /// The definition in use, own or external; may be null.
    sEnumDefinition* GetDefinition();

    /// Adds an entry to the definition in use, or replaces the display text of a value; the entry
    /// is appended to the list of entries in any case. Without a definition nothing happens; a null
    /// text is ignored.
    void AddEnum(const char* value, const char* display);
    /// Forgets the display texts of the definition in use, also of an external one. The list of
    /// entries stays.
    void ClearEnum();

protected:
    /// The definition in use; may be null.
    sEnumDefinition* m_pDefinition = nullptr;
    /// True for a definition that CreateEnum made.
    bool m_bOwnsDefinition = false;

private:
    void ReleaseDefinition();
};
