#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// A second, slow computation of the layout, which shares no code with the library.
///
/// It works on a tree of its own with plain numbers, one rule after the other, so that it can be
/// read beside the description of the layout. Every sum and product wraps around at 32 bits.

/// Bounds of a control or container as a caller asks for them.
struct sReferenceRequest
{
    bool m_bRelativeMin = false;
    int m_iMin = -1;
    bool m_bRelativeMax = false;
    int m_iMax = -1;
    int m_iOptions = 0;
    /// When not 0, the caller answers for itself: this part of the reference width.
    int m_iOwnMinPart = 0;
    int m_iOwnMaxPart = 0;

    bool IsOwn() const { return m_iOwnMinPart != 0; }

    int Min(int reference) const;
    int Max(int reference) const;
};

struct sReferenceRect
{
    int m_iX = 0;
    int m_iY = 0;
    int m_iWidth = 0;
    int m_iHeight = 0;
};

struct sReferenceControl
{
    int m_iRequiredWidth = 0;
    /// The required height is this number, plus the given width divided by the second one when that
    /// is not 0 (as texts need fewer lines in wider rows).
    int m_iRequiredHeight = 0;
    int m_iHeightDivisor = 0;
    std::shared_ptr<sReferenceRequest> m_pRequest;

    sReferenceRect m_rect; ///< what the widget is given

    int RequiredHeight(int width) const;
};

enum eReferenceKind
{
    eReferenceGroup,
    eReferenceControlRow,
    eReferenceContainerRow,
};

struct sReferenceNode
{
    eReferenceKind m_eKind = eReferenceGroup;
    std::string m_sName;
    int m_iMeasuredLabel = 0;
    std::shared_ptr<sReferenceRequest> m_pRequest; ///< of a container row
    std::vector<sReferenceControl> m_vControls;    ///< one for a control row
    std::vector<sReferenceNode> m_vChildren;       ///< of a group

    int m_iX = 0;
    int m_iY = 0;
    int m_iWidth = 0;
    int m_iHeight = 0;
    int m_iLabelWidth = 0;
    sReferenceRect m_rectContainer; ///< the holder's rectangle of a container row

    bool IsRow() const { return m_eKind != eReferenceGroup; }
};

/// The metrics in force.
struct sReferenceMetrics
{
    int m_iInspectorLeft = 5;
    int m_iInspectorRight = 5;
    int m_iInspectorTop = 5;
    int m_iInspectorBottom = 5;
    int m_iGroupLeft = 5;
    int m_iGroupRight = 5;
    int m_iGroupTop = 5;
    int m_iGroupBottom = 5;
    int m_iGroupLabel = 10;
    int m_iGap = 5;

    static sReferenceMetrics Preview();
};

class CReferenceLayout
{
public:
    std::vector<sReferenceNode> m_vNodes;
    sReferenceMetrics m_metrics;
    bool m_bPreview = false;
    bool m_bAlignLabels = true;
    int m_iInspectorWidth = 0;
    int m_iInspectorHeight = 0;
    int m_iContentHeight = 0;

    /// The whole layout.
    void Compute();

    /// The width pass alone, whatever the mode is.
    void ComputeWidths();

private:
    struct sEntry
    {
        int m_iMin;
        int m_iMax;
        int m_iWidth;
        int m_iRoom;
        sReferenceControl* m_pControl;
    };

    void Stack(std::vector<sReferenceNode>& nodes, int left, int right, int& y);
    void AlignLevel(std::vector<sReferenceNode>& nodes);
    void AloneRow(sReferenceNode& row);
    void Run(std::vector<sReferenceNode>& nodes);
    void PreviewWidths();

    static std::vector<sEntry> Entries(sReferenceNode& row);
    static void ShareOut(sReferenceNode& row, std::vector<sEntry> entries);
    static void PlaceRow(sReferenceNode& row);
    static void Flatten(std::vector<sReferenceNode>& nodes, std::vector<sReferenceNode*>& out);
};
