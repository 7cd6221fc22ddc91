#include "testpanel.h"

#include <simpledataelement.h>

#include <QMetaMethod>

#include <gtest/gtest.h>

#include <cxxabi.h>
#include <memory>
#include <type_traits>
#include <typeinfo>

namespace
{

template <typename Member>
struct sOwner;

template <typename Owner, typename Function>
struct sOwner<Function Owner::*>
{
    using CType = Owner;
};

/// The class that declares an operation last is the one that its pointer names.
#define EXPECT_DECLARED_BY(Owner, operation)                                                       \
    EXPECT_TRUE((std::is_same_v<sOwner<decltype(&CDeclarations::operation)>::CType, Owner>))       \
        << #operation " is not declared by " #Owner

struct CDeclarations : public CQTInspectorView
{
    static void ExpectOnlyPaintEventOnTheQtSide()
    {
        EXPECT_DECLARED_BY(CQTInspectorView, paintEvent);
        EXPECT_DECLARED_BY(CQTInspectorView, metaObject);
        EXPECT_DECLARED_BY(CQTInspectorView, qt_metacall);
        EXPECT_DECLARED_BY(CQTInspectorView, qt_metacast);

        EXPECT_DECLARED_BY(QWidget, event);
        EXPECT_DECLARED_BY(QWidget, mousePressEvent);
        EXPECT_DECLARED_BY(QWidget, mouseReleaseEvent);
        EXPECT_DECLARED_BY(QWidget, mouseDoubleClickEvent);
        EXPECT_DECLARED_BY(QWidget, mouseMoveEvent);
        EXPECT_DECLARED_BY(QWidget, wheelEvent);
        EXPECT_DECLARED_BY(QWidget, keyPressEvent);
        EXPECT_DECLARED_BY(QWidget, keyReleaseEvent);
        EXPECT_DECLARED_BY(QWidget, focusInEvent);
        EXPECT_DECLARED_BY(QWidget, focusOutEvent);
        EXPECT_DECLARED_BY(QWidget, enterEvent);
        EXPECT_DECLARED_BY(QWidget, leaveEvent);
        EXPECT_DECLARED_BY(QWidget, moveEvent);
        EXPECT_DECLARED_BY(QWidget, resizeEvent);
        EXPECT_DECLARED_BY(QWidget, closeEvent);
        EXPECT_DECLARED_BY(QWidget, contextMenuEvent);
        EXPECT_DECLARED_BY(QWidget, tabletEvent);
        EXPECT_DECLARED_BY(QWidget, actionEvent);
        EXPECT_DECLARED_BY(QWidget, dragEnterEvent);
        EXPECT_DECLARED_BY(QWidget, dragMoveEvent);
        EXPECT_DECLARED_BY(QWidget, dragLeaveEvent);
        EXPECT_DECLARED_BY(QWidget, dropEvent);
        EXPECT_DECLARED_BY(QWidget, showEvent);
        EXPECT_DECLARED_BY(QWidget, hideEvent);
        EXPECT_DECLARED_BY(QWidget, nativeEvent);
        EXPECT_DECLARED_BY(QWidget, changeEvent);
        EXPECT_DECLARED_BY(QWidget, metric);
        EXPECT_DECLARED_BY(QWidget, initPainter);
        EXPECT_DECLARED_BY(QWidget, redirected);
        EXPECT_DECLARED_BY(QWidget, sharedPainter);
        EXPECT_DECLARED_BY(QWidget, inputMethodEvent);
        EXPECT_DECLARED_BY(QWidget, inputMethodQuery);
        EXPECT_DECLARED_BY(QWidget, focusNextPrevChild);
        EXPECT_DECLARED_BY(QWidget, devType);
        EXPECT_DECLARED_BY(QWidget, setVisible);
        EXPECT_DECLARED_BY(QWidget, sizeHint);
        EXPECT_DECLARED_BY(QWidget, minimumSizeHint);
        EXPECT_DECLARED_BY(QWidget, heightForWidth);
        EXPECT_DECLARED_BY(QWidget, hasHeightForWidth);
        EXPECT_DECLARED_BY(QWidget, paintEngine);
        EXPECT_DECLARED_BY(QObject, eventFilter);
        EXPECT_DECLARED_BY(QObject, timerEvent);
        EXPECT_DECLARED_BY(QObject, childEvent);
        EXPECT_DECLARED_BY(QObject, customEvent);
        EXPECT_DECLARED_BY(QObject, connectNotify);
        EXPECT_DECLARED_BY(QObject, disconnectNotify);
    }

    static void ExpectTheEnginesHooks()
    {
        EXPECT_DECLARED_BY(CQTInspectorView, ResizeInspector);
        EXPECT_DECLARED_BY(CQTInspectorView, UpdateView);
        EXPECT_DECLARED_BY(CQTInspectorView, EnsureVisible);
        EXPECT_DECLARED_BY(CQTInspectorView, GetGroupLeftMargin);
        EXPECT_DECLARED_BY(CQTInspectorView, GetGroupRightMargin);
        EXPECT_DECLARED_BY(CQTInspectorView, GetGroupTopMargin);
        EXPECT_DECLARED_BY(CQTInspectorView, GetGroupBottomMargin);
        EXPECT_DECLARED_BY(CQTInspectorView, GetGroupLabelHeight);
        EXPECT_DECLARED_BY(CQTInspectorView, GetHeightBetweenControl);
        EXPECT_DECLARED_BY(CQTInspectorView, GetElementLabelWidth);
        EXPECT_DECLARED_BY(CQTInspectorView, OnToggleShowContent);
        EXPECT_DECLARED_BY(CQTInspectorView, OnContentHeightSet);
        EXPECT_DECLARED_BY(CQTInspectorView, ParentControlToInspector);

        EXPECT_DECLARED_BY(CInspectorView, RemoveAll);
        EXPECT_DECLARED_BY(CInspectorView, AddGroup);
        EXPECT_DECLARED_BY(CInspectorView, AddElement);
        EXPECT_DECLARED_BY(CInspectorView, AddSingleLineContainer);
        EXPECT_DECLARED_BY(CInspectorView, DirtyView);
        EXPECT_DECLARED_BY(CInspectorView, RecomputeLayout);
        EXPECT_DECLARED_BY(CInspectorView, ComputeHoldersWidth);
        EXPECT_DECLARED_BY(CInspectorView, ComputeHoldersWidthForPreview);
        EXPECT_DECLARED_BY(CInspectorView, GetInspectorLeftMargin);
        EXPECT_DECLARED_BY(CInspectorView, GetInspectorRightMargin);
        EXPECT_DECLARED_BY(CInspectorView, GetInspectorTopMargin);
        EXPECT_DECLARED_BY(CInspectorView, GetInspectorBottomMargin);
        EXPECT_DECLARED_BY(CInspectorView, GetCurrentContentHeight);
        EXPECT_DECLARED_BY(CInspectorView, OnPreDraw);
        EXPECT_DECLARED_BY(CInspectorView, PositionControl);
        EXPECT_DECLARED_BY(CInspectorView, OffsetControls);
    }
};

} // namespace

TEST(QtInspectorView, IsAWidgetFirstAndALayoutEngineSecond)
{
    const auto* bases = dynamic_cast<const abi::__vmi_class_type_info*>(&typeid(CQTInspectorView));
    ASSERT_NE(bases, nullptr);
    ASSERT_EQ(bases->__base_count, 2U);
    EXPECT_EQ(*bases->__base_info[0].__base_type, typeid(QWidget));
    EXPECT_EQ(*bases->__base_info[1].__base_type, typeid(CInspectorView));
    EXPECT_TRUE(bases->__base_info[0].__is_public_p());
    EXPECT_TRUE(bases->__base_info[1].__is_public_p());
    EXPECT_EQ(bases->__base_info[0].__offset(), 0);
    EXPECT_EQ(bases->__base_info[1].__offset(), static_cast<std::ptrdiff_t>(sizeof(QWidget)));
}

TEST(QtInspectorView, ReplacesOnlyThePainting)
{
    CDeclarations::ExpectOnlyPaintEventOnTheQtSide();
}

TEST(QtInspectorView, ReplacesTheHooksOfTheEngineAndNothingElse)
{
    CDeclarations::ExpectTheEnginesHooks();
}

TEST(QtInspectorView, HasOneSlotAndNothingElseInItsMetaObject)
{
    const QMetaObject& meta = CQTInspectorView::staticMetaObject;
    EXPECT_STREQ(meta.className(), "CQTInspectorView");
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.access(), QMetaMethod::Protected);
    EXPECT_EQ(slot.methodSignature(), QByteArray("SliderValueChanged(int)"));
    EXPECT_EQ(slot.parameterNames(), QList<QByteArray>{QByteArray("value")});
    EXPECT_EQ(slot.returnType(), int(QMetaType::Void));
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
    EXPECT_EQ(meta.enumeratorCount(), meta.enumeratorOffset());
    EXPECT_EQ(meta.classInfoCount(), meta.classInfoOffset());
    EXPECT_EQ(meta.constructorCount(), 0);
}

TEST(QtInspectorView, IsFoundByTheNamesOfItselfAndItsBases)
{
    CQTInspectorView view;
    EXPECT_EQ(view.qt_metacast("CQTInspectorView"), &view);
    EXPECT_EQ(view.qt_metacast("CInspectorView"), static_cast<CInspectorView*>(&view));
    EXPECT_EQ(view.qt_metacast("QWidget"), static_cast<QWidget*>(&view));
    EXPECT_EQ(view.qt_metacast("CInspectorController"), nullptr);
}

TEST(QtInspectorView, StartsWithoutParentAndWithDefaultFlags)
{
    CCallLog log;
    const CTestView view(log);
    const QWidget plain;
    EXPECT_EQ(view.parent(), nullptr);
    EXPECT_EQ(view.windowFlags(), plain.windowFlags());
    EXPECT_TRUE(view.isHidden());
    EXPECT_EQ(view.size(), plain.size());
    EXPECT_EQ(view.m_sPreviewMessage, "");
    EXPECT_FALSE(view.m_colorPreview.isValid());
    EXPECT_EQ(view.m_iInspectorWidth, 0);
    EXPECT_EQ(view.m_iInspectorHeight, 0);
    EXPECT_EQ(view.m_iContentHeight, 0);
    EXPECT_EQ(view.m_iOffsetX, 0);
    EXPECT_EQ(view.m_iOffsetY, 0);
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(QtInspectorView, StartsWithAShownContentAndAHiddenScrollBar)
{
    CCallLog log;
    const CTestView view(log);
    const QList<QWidget*> children =
        view.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(children, (QList<QWidget*>{view.m_pContent, view.m_pScrollBar}));

    EXPECT_STREQ(view.m_pContent->metaObject()->className(), "QWidget");
    EXPECT_FALSE(view.m_pContent->isHidden());
    EXPECT_TRUE(view.m_pContent->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_TRUE(view.m_pContent->children().isEmpty());

    const QScrollBar plain;
    EXPECT_STREQ(view.m_pScrollBar->metaObject()->className(), "QScrollBar");
    EXPECT_TRUE(view.m_pScrollBar->isHidden());
    EXPECT_EQ(view.m_pScrollBar->orientation(), Qt::Vertical);
    EXPECT_EQ(view.m_pScrollBar->minimum(), plain.minimum());
    EXPECT_EQ(view.m_pScrollBar->maximum(), plain.maximum());
    EXPECT_EQ(view.m_pScrollBar->pageStep(), plain.pageStep());
    EXPECT_EQ(view.m_pScrollBar->singleStep(), plain.singleStep());
    EXPECT_EQ(view.m_pScrollBar->value(), 0);
    EXPECT_EQ(view.m_pScrollBar->pos(), QPoint(0, 0));
}

TEST(QtInspectorView, HasTheSameMetricsInPreviewMode)
{
    CCallLog log;
    CTestView view(log);
    for (const bool preview : {false, true})
    {
        view.SetPreviewMode(preview);
        EXPECT_EQ(view.GetGroupLeftMargin(), 5);
        EXPECT_EQ(view.GetGroupRightMargin(), 5);
        EXPECT_EQ(view.GetGroupTopMargin(), 5);
        EXPECT_EQ(view.GetGroupBottomMargin(), 5);
        EXPECT_EQ(view.GetGroupLabelHeight(), 14);
        EXPECT_EQ(view.GetHeightBetweenControl(), 5);
        const int margin = preview ? 0 : 5;
        EXPECT_EQ(view.GetInspectorLeftMargin(), margin);
        EXPECT_EQ(view.GetInspectorRightMargin(), margin);
        EXPECT_EQ(view.GetInspectorTopMargin(), margin);
        EXPECT_EQ(view.GetInspectorBottomMargin(), margin);
    }
}

TEST(QtInspectorView, GivesAControlTheContentAsItsParent)
{
    sTestPanel panel;
    auto* control = new CTestControl(panel.m_log, "control");
    panel.m_view.ParentControlToInspector(control);
    EXPECT_EQ(control->parentWidget(), panel.m_view.m_pContent);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(QtInspectorView, ShowsAControlThatIsAdded)
{
    sTestPanel panel;
    const CTestControl* control = panel.AddRow("control");
    EXPECT_EQ(control->parentWidget(), panel.m_view.m_pContent);
    EXPECT_FALSE(control->isHidden());
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"control.Show()", "view.UpdateView()"}));
}

TEST(QtInspectorView, LeavesAControlAloneThatIsNoWidget)
{
    sTestPanel panel;
    CRecordingWidget control(panel.m_log);
    panel.m_view.ParentControlToInspector(&control);
    panel.m_view.ParentControlToInspector(nullptr);
    EXPECT_TRUE(panel.m_view.m_pContent->children().isEmpty());
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(QtInspectorView, StoresAPreviewMessageUntilAnEmptyOneComes)
{
    sTestPanel panel;
    EXPECT_FALSE(panel.m_view.HasPreviewMessage());
    panel.m_view.SetPreviewMessage("Nothing selected", Qt::red);
    EXPECT_TRUE(panel.m_view.HasPreviewMessage());
    EXPECT_EQ(panel.m_view.m_sPreviewMessage, "Nothing selected");
    EXPECT_EQ(panel.m_view.m_colorPreview, QColor(Qt::red));
    panel.m_view.SetPreviewMessage("", QColor());
    EXPECT_FALSE(panel.m_view.HasPreviewMessage());
    EXPECT_EQ(panel.m_view.m_sPreviewMessage, "");
    EXPECT_FALSE(panel.m_view.m_colorPreview.isValid());
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(QtInspectorView, TakesANewColourWithItsOwnMessage)
{
    sTestPanel panel;
    panel.m_view.SetPreviewMessage("Nothing selected", Qt::red);
    panel.m_view.SetPreviewMessage(panel.m_view.m_sPreviewMessage, Qt::blue);
    EXPECT_EQ(panel.m_view.m_sPreviewMessage, "Nothing selected");
    EXPECT_EQ(panel.m_view.m_colorPreview, QColor(Qt::blue));
}

TEST(QtInspectorView, ShrinksHiddenControlsBeforeItAsksForARepaint)
{
    sTestPanel panel;
    panel.AddRow("a");
    panel.m_view.ResizeInspector(300, 100);
    panel.m_log.Clear();
    panel.m_view.ShowContent(false, false);
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.OnToggleShowContent(false)", "a.ResizeWidget(0, 0)",
                                          "view.UpdateView()"}));
    panel.m_view.ShowContent(true, false);
    const int label = panel.m_view.m_lElements.front().m_iLabelWidth;
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.OnToggleShowContent(true)",
                                          "a.MoveWidget(" + std::to_string(5 + label) + ", 5)",
                                          "a.ResizeWidget(" + std::to_string(270 - label) + ", 20)",
                                          "view.UpdateView()"}));
}
