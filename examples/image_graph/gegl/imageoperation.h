#pragma once

#include "imageproperty.h"
#include "imagevalue.h"

#include <array>
#include <map>
#include <memory>
#include <string>

using GeglNode = struct _GeglNode;

/// One operation with its values, connected to nothing: graphs for rendering and saving are made
/// from copies, so that editing never meets a picture that is being rendered.
///
/// Values travel as text: numbers with a decimal point, "true" and "false", nicknames of
/// enumerations, texts and paths as they are. All texts are UTF-8.
class CImageOperation
{
public:
    /// Null when there is no operation of that name.
    static std::unique_ptr<CImageOperation> Create(const std::string& name);
    ~CImageOperation();
    CImageOperation(const CImageOperation&) = delete;
    CImageOperation& operator=(const CImageOperation&) = delete;

    const sOperationInfo& GetInfo() const { return m_info; }

    std::string GetText(const sImageProperty& property) const;
    /// Colours and properties of other kinds are refused.
    sWriteResult SetText(const sImageProperty& property, const std::string& text);

    /// One of the four components of a colour (red, green, blue, alpha, as the eye counts them:
    /// with the transfer curve of sRGB), to four digits.
    std::string GetComponent(const sImageProperty& property, int component) const;
    sWriteResult SetComponent(const sImageProperty& property, int component,
                              const std::string& text);
    using CColor = std::array<double, 4>;
    CColor GetColor(const sImageProperty& property) const;
    void SetColor(const sImageProperty& property, const CColor& color);

    /// Gives every property the value that a new operation has.
    void Reset();

    /// A value of any kind as it is, to be put back later.
    CImageValue GetValue(const sImageProperty& property) const;
    void SetValue(const sImageProperty& property, const CImageValue& value);
    /// Another operation of the kind, with the same values.
    std::unique_ptr<CImageOperation> Copy() const;
    /// A copy that nobody changes, for use in another thread. It is the same one until a value
    /// changes.
    std::shared_ptr<const CImageOperation> GetSnapshot() const;

    /// For the sources of this folder: copies all values that can be copied, but for the paths of
    /// files.
    void WriteTo(GeglNode* node) const;
    /// Tells a node its files, which it opens at once.
    void WritePathsTo(GeglNode* node) const;
    GeglNode* GetNode() const { return m_pNode; }

private:
    explicit CImageOperation(const sOperationInfo& info);

    const sOperationInfo& m_info;
    GeglNode* m_pGraph;
    GeglNode* m_pNode;
    std::map<const sImageProperty*, std::string> m_mapPaths;    ///< of what opens a file
    mutable std::shared_ptr<const CImageOperation> m_pSnapshot; ///< null when it is out of date
};
