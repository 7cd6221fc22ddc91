#include "wxpanel.h"

#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/propgrid/propgrid.h>
#include <wx/propgrid/props.h>
#include <wx/wupdlock.h>

#include <map>

namespace
{

/// The toolkit lays out and paints in frames, and tells nobody whether one is due: when nothing
/// came for longer than from one frame to the next, none was.
void RunUntilQuiet()
{
    constexpr unsigned long quietMilliseconds = 20;
    while (wxEventLoopBase::GetActive()->DispatchTimeout(quietMilliseconds) != -1)
    {
    }
}

class CWxPanel : public CPanel
{
public:
    CWxPanel()
    {
        m_pFrame = new wxFrame(nullptr, wxID_ANY, wxString());
        // The window stays as large as it is: another size would take an answer of the display.
        m_pFrame->SetClientSize(g_iPanelWidth + 1, g_iPanelHeight);
        m_pGrid = new wxPropertyGrid(new wxPanel(m_pFrame), wxID_ANY, wxPoint(0, 0),
                                     wxSize(g_iPanelWidth, g_iPanelHeight),
                                     wxPG_DEFAULT_STYLE | wxPG_SPLITTER_AUTO_CENTER);
    }

    ~CWxPanel() override
    {
        // Destroy would wait until the application is idle, and that is while the next panel is
        // timed.
        delete m_pFrame;
        RunUntilQuiet();
    }

    void Fill(const CRowPlan& plan) override
    {
        {
            const wxWindowUpdateLocker quiet(m_pGrid);
            for (const sPlannedGroup& group : plan)
            {
                m_pGrid->Append(
                    new wxPropertyCategory(wxString::FromUTF8(group.m_sName), UniqueName()));
                for (const sPlannedRow& row : group.m_vRows)
                    AddRow(row);
            }
        }
        m_pFrame->Show();
    }

    void SetWidth(int width) override { m_pGrid->SetSize(width, g_iPanelHeight); }

    int GetScrollSteps() override
    {
        return m_pGrid->GetScrollLines(wxVERTICAL) - m_pGrid->GetScrollPageSize(wxVERTICAL);
    }

    void ScrollTo(int step) override { m_pGrid->Scroll(wxDefaultCoord, step); }

    int GetRowCount() override { return static_cast<int>(m_vRows.size()); }

    void ChangeValue(int row, int round) override
    {
        const sRow& changed = m_vRows[row];
        const std::string value = NextValue(changed.m_plan, round);
        switch (changed.m_plan.m_eKind)
        {
        case ePlannedKind::Bool:
            m_pGrid->SetPropertyValue(changed.m_pField, value == "1");
            break;
        case ePlannedKind::Enum:
            m_pGrid->SetPropertyValue(changed.m_pField, std::stoi(value));
            break;
        case ePlannedKind::Button:
            break;
        default:
            m_pGrid->SetPropertyValue(changed.m_pField, wxString::FromUTF8(value));
        }
    }

    void ChangeAllValues(int round) override
    {
        const wxWindowUpdateLocker quiet(m_pGrid);
        for (int row = 0; row < GetRowCount(); ++row)
            ChangeValue(row, round);
    }

    void RemoveRows(const std::vector<int>& rows) override
    {
        const wxWindowUpdateLocker quiet(m_pGrid);
        for (int row : rows)
            m_pGrid->DeleteProperty(m_vRows[row].m_pProperty);
    }

    void Clear() override
    {
        m_pGrid->Clear();
        m_vRows.clear();
    }

    void GoToNextRow() override
    {
        m_pGrid->SelectProperty(m_vRows[m_iFocus++ % m_vRows.size()].m_pProperty, true);
    }

    void Paint() override { RunUntilQuiet(); }

private:
    struct sRow
    {
        wxPGProperty* m_pProperty;
        wxPGProperty* m_pField; ///< the one that has the value
        const sPlannedRow& m_plan;
    };

    /// A grid wants names that differ, which labels need not.
    wxString UniqueName() { return wxString::Format("%d", m_iNames++); }

    void AddRow(const sPlannedRow& row)
    {
        wxPGProperty* property = m_pGrid->Append(MakeProperty(row));
        wxPGProperty* field = property;
        if (row.m_eKind == ePlannedKind::Button)
            property->SetEditor(wxPGEditor_TextCtrlAndButton);
        if (row.m_eKind == ePlannedKind::Container)
        {
            field = AppendField(property, row);
            AppendField(property, row);
            AppendField(property, row);
        }
        m_vRows.push_back({property, field, row});
    }

    wxPGProperty* MakeProperty(const sPlannedRow& row)
    {
        const wxString label = wxString::FromUTF8(row.m_sName);
        const wxString value = wxString::FromUTF8(row.m_sValue);
        switch (row.m_eKind)
        {
        case ePlannedKind::Bool:
            return new wxBoolProperty(label, UniqueName(), row.m_sValue == "1");
        case ePlannedKind::Enum:
            return new wxEnumProperty(label, UniqueName(), GetChoices(row.m_vChoices),
                                      std::stoi(row.m_sValue));
        case ePlannedKind::Container:
        {
            // Collapsed, so that the fields are shown on the one line.
            auto* fields = new wxStringProperty(label, UniqueName(), wxS("<composed>"));
            fields->SetExpanded(false);
            return fields;
        }
        default:
            return new wxStringProperty(label, UniqueName(), value);
        }
    }

    /// Rows with the same choices share them.
    wxPGChoices& GetChoices(const std::vector<std::string>& choices)
    {
        wxPGChoices& list = m_mapChoices[choices];
        if (!list.IsOk())
        {
            for (const std::string& choice : choices)
                list.Add(wxString::FromUTF8(choice));
        }
        return list;
    }

    wxPGProperty* AppendField(wxPGProperty* container, const sPlannedRow& row)
    {
        const wxString value = wxString::FromUTF8(row.m_sValue);
        return m_pGrid->AppendIn(container, new wxStringProperty(row.m_sName, UniqueName(), value));
    }

    std::map<std::vector<std::string>, wxPGChoices> m_mapChoices;
    wxFrame* m_pFrame;
    wxPropertyGrid* m_pGrid;
    std::vector<sRow> m_vRows;
    std::size_t m_iFocus = 0;
    int m_iNames = 0;
};

} // namespace

std::unique_ptr<CPanel> MakeWxPanel()
{
    return std::make_unique<CWxPanel>();
}
