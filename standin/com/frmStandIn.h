#pragma once

#include "platform/controls/ComboBox.h"
#include "platform/controls/Label.h"
#include "platform/Form.h"
#include "standin/com/CallList.h"
#include "standin/com/ColorTablePane.h"
#include "standin/com/DetailsPane.h"
#include "standin/com/ObjectList.h"
#include "standin/com/PicturePane.h"
#include "standin/com/ServedObjects.h"

// The window of the stand-in: choice of the document, everything that can be selected, the picture,
// the values of the selection, the color table and the last calls.
class frmStandIn final : public Form, private ModelObserver {
public:
    frmStandIn(StandInModel& model, const ServedObjects& objects, ErrorSink& errors);
    frmStandIn(const frmStandIn&) = delete;
    frmStandIn& operator=(const frmStandIn&) = delete;
    ~frmStandIn() override;

    void Open();

    // A call was received; the list of calls follows soon.
    void CallReceived() noexcept { ModelChanged(); }

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override { PostQuitMessage(0); }
    void OnCancelKey() override; // Escape: nothing is selected any more
    void OnScaleChanged() override { LoadStandInIcons(); }
    void OnLayout() override;

private:
    void ModelChanged() noexcept override;

    void Connect();
    void LoadStandInIcons();
    void ChooseDocument(int index);
    void Pick(const SelectedItem& item, bool append);
    void ChangeSelection(const SelectionChange& change);
    void ShowDocument();
    void ShowNames(); // what an order can change
    void Refresh();
    [[nodiscard]] LRESULT AnswerQuestion(WPARAM question, LPARAM row);
    [[nodiscard]] LRESULT PointOfRow(LPARAM row);
    [[nodiscard]] LRESULT TakeOrder(const COPYDATASTRUCT& data);
    void LayOutLeft(const RECT& area);
    void LayOutRight(const RECT& area);

    StandInModel& model_;
    const ServedObjects& objects_;
    UINT askMessage_;
    DocumentPtr shownDocument_;
    std::string shownTitle_;
    bool refreshRequested_ = false;
    std::size_t refreshes_ = 0;
    UINT refreshDelay_ = 0; // milliseconds
    IconHandle standInBigIcon_;
    IconHandle standInSmallIcon_;

    Label& documentLabel_;
    ComboBox& documentChoice_;
    Label& revision_;
    ObjectList& list_;
    PicturePane& picture_;
    DetailsPane& details_;
    ColorTablePane& colorTable_;
    Label& callsLabel_;
    CallList& calls_;
};
