// The real control's settings in a form: each of them saved into a form file, and a new control loaded from there.
#include "com/support/form_folder.h"
#include "container/form_property_bag.h"
#include "control/saved_properties.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"
#include "support/container/pictures.h"
#include "support/container/text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <map>

namespace vellora::test {
namespace {

using samples::FormObject;
using samples::FormPropertyBag;

ComPtr<IDispatch> font() {
    const ComPtr<IDispatch> made = make_font(L"Courier New", 10.5);
    ComPtr<IFont> look;
    EXPECT_EQ(S_OK, made.As(&look));
    EXPECT_EQ(S_OK, look->put_Bold(TRUE));
    EXPECT_EQ(S_OK, look->put_Italic(TRUE));
    EXPECT_EQ(S_OK, look->put_Strikethrough(TRUE));
    return made;
}

/// No setting has its default value.
std::map<std::wstring, Variant> other_settings() {
    return {{L"Text", L"\"Z\u00FCrich\" said 'yes' \U0001F600"},
            {L"Columns", std::int16_t{3}},
            {L"BackColor", 0xC0FFFFL},
            {L"DropDownHeight", 2.1F},
            {L"HideColumnHeaders", true},
            {L"Sorted", true},
            {L"SortOrder", 1L},
            {L"TextColumn", std::int16_t{2}},
            {L"SortColumn", std::int16_t{3}},
            {L"Picture", make_picture("bitmap", {16, 16}).Get()},
            {L"AutoComplete", true},
            {L"Enabled", false},
            {L"Locked", true},
            {L"AutoHeight", false},
            {L"Font", font().Get()},
            {L"DropDownBackColor", 0xFFC0C0L},
            {L"DropDownForeColor", static_cast<long>(0x80000011UL)},
            {L"DropDownAlignment", 1L},
            {L"DropDownWidthOffset", 120.25F},
            {L"AutoSize", 1L},
            {L"GridLines", true},
            {L"ButtonStyle", 1L},
            {L"ButtonForeColor", 0xFFL},
            {L"ButtonBackColor", 0xFF00L},
            {L"CheckBoxes", true},
            {L"AllowResize", true},
            {L"AllowColumnReorder", true},
            {L"ShowItemToolTips", true},
            {L"ForeColor", 0x800000L},
            {L"Alignment", 2L},
            {L"MaxLength", 40L},
            {L"LeftMargin", 3L},
            {L"RightMargin", 4L},
            {L"ColumnHeader1", L"Name"},
            {L"ColumnHeader2", L"Two\r\nlines"},
            {L"ColumnHeader3", L""},
            {L"ColumnWidth1", 33.3F},
            {L"ColumnHidden2", true},
            {L"ColumnLocked3", true}};
}

/// All there is to say about the font of a control.
Lines font_of(Site& site) {
    ComPtr<IFontDisp> held;
    EXPECT_EQ(S_OK, site.as<_Vellora>()->get_Font(&held));
    Lines all;
    for (const wchar_t* name :
         {L"Name", L"Size", L"Bold", L"Italic", L"Underline", L"Strikethrough", L"Weight", L"Charset"})
        all.push_back(get_property(held.Get(), name).describe());
    return all;
}

/// The names of settings, in order.
Lines names_of(const FormObject& settings) {
    Lines names;
    for (const samples::FormSetting& setting : settings.settings)
        names.push_back(utf8(std::wstring(setting.name.begin(), setting.name.end())));
    return names;
}

class FormBagTest : public HostTest {
protected:
    /// A control with a site and no settings yet.
    Site& fresh() {
        Site& site = container_.add_site(L"Vellora1", {20, 20, 220, 44});
        site.take(Library::instance().create(__uuidof(Vellora)));
        EXPECT_EQ(S_OK, site.give_site());
        return site;
    }
    Site& changed() {
        Site& site = fresh();
        const ComPtr<PropertyBag> bag(new PropertyBag);
        for (const auto& [name, value] : other_settings())
            bag->put(name, value);
        EXPECT_EQ(S_OK, site.load(*bag.Get()));
        return site;
    }
    static FormObject saved(Site& site) {
        FormObject settings;
        const ComPtr<FormPropertyBag> bag(new FormPropertyBag(settings));
        EXPECT_EQ(S_OK, site.as<IPersistPropertyBag>()->Save(bag.Get(), TRUE, TRUE));
        return settings;
    }
    Site& loaded(FormObject& settings) {
        Site& site = fresh();
        const ComPtr<FormPropertyBag> bag(new FormPropertyBag(settings));
        EXPECT_EQ(S_OK, site.as<IPersistPropertyBag>()->Load(bag.Get(), nullptr));
        return site;
    }
    // A list without rows has no row to select, and an image list does not save itself.
    static void expect_all_names(const Lines& names) {
        for (const auto all : {properties_before_columns(), properties_after_columns()}) {
            for (const SavedProperty& property : all) {
                const std::string name = utf8(std::wstring(property.key.begin(), property.key.end()));
                const bool can_be_saved = name != "ListIndex" && name != "HeaderIcons";
                EXPECT_EQ(can_be_saved ? 1 : 0, std::ranges::count(names, name)) << name;
            }
        }
    }
    static Lines written(Site& site) {
        const ComPtr<PropertyBag> bag(new PropertyBag);
        EXPECT_EQ(S_OK, site.save(*bag.Get()));
        return bag->written();
    }

    FormFolder folder_;
};

TEST_F(FormBagTest, EverySettingComesBackFromAFile) {
    Site& site = changed();
    const FormObject settings = saved(site);
    expect_all_names(names_of(settings));
    write_form_file(folder_.form(), form_of(settings));
    samples::Form form = samples::read_form_file(folder_.form());
    Site& other = loaded(form.controls.at(0).settings);
    EXPECT_TRUE(same_lines(written(site), written(other)));
    // Fonts and pictures have no words in those lines, but all their bytes in these files.
    write_form_file(folder_.path(L"Form2.frm"), form_of(saved(other)));
    EXPECT_EQ(FormFolder::content(folder_.companion()), FormFolder::content(folder_.path(L"Form2.frx")));
    std::string text = FormFolder::content(folder_.path(L"Form2.frm"));
    for (std::size_t at = 0; (at = text.find("Form2.frx", at)) != std::string::npos;)
        text.replace(at, 9, "Form1.frx");
    EXPECT_EQ(FormFolder::content(folder_.form()), text);
}

TEST_F(FormBagTest, AFileShowsSettingsInTheWordsOfForms) {
    write_form_file(folder_.form(), form_of(saved(changed())));
    const std::string text = FormFolder::content(folder_.form());
    for (const char* line : {"   Locked          =   -1  'True\r\n", "   Enabled         =   0  'False\r\n",
                             "   DropDownHeight  =   2.1\r\n", "   ColumnWidth1    =   33.3\r\n",
                             "   Text            =   \"\"\"Z\u00FCrich\"\" said 'yes' \U0001F600\"\r\n",
                             "   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}\r\n",
                             "      Size            =   10.5\r\n", "      Weight          =   700\r\n",
                             "      Italic          =   -1  'True\r\n", "   Picture         =   \"Form1.frx\":"})
        EXPECT_NE(std::string::npos, text.find(line)) << line << text;
}

TEST_F(FormBagTest, TheFontIsTheOneThatWasSaved) {
    Site& site = changed();
    FormObject settings = saved(site);
    EXPECT_EQ(font_of(site), font_of(loaded(settings)));
}

TEST_F(FormBagTest, ThePictureIsTheOneThatWasSaved) {
    FormObject settings = saved(changed());
    ComPtr<IPictureDisp> held;
    ComPtr<IPicture> picture;
    ASSERT_EQ(S_OK, vellora(loaded(settings))->get_Picture(&held));
    ASSERT_EQ(S_OK, held.As(&picture));
    SHORT type = 0;
    OLE_XSIZE_HIMETRIC width = 0;
    EXPECT_EQ(S_OK, picture->get_Type(&type));
    EXPECT_EQ(S_OK, picture->get_Width(&width));
    EXPECT_EQ(PICTYPE_BITMAP, type);
    EXPECT_NEAR(16 * 2540.0 / 96, width, 30);
}

TEST_F(FormBagTest, ANewControlComesBackToo) {
    Site& site = fresh();
    FormObject settings = saved(site);
    EXPECT_TRUE(same_lines(written(site), written(loaded(settings))));
}

TEST_F(FormBagTest, WhatTheControlDoesNotKnowIsKept) {
    FormObject settings{u"", {{u"Tag", std::u16string(u"mine")}, {u"text", std::u16string(u"x")}, {u"Hint", 0.5}}};
    const ComPtr<FormPropertyBag> bag(new FormPropertyBag(settings));
    ASSERT_EQ(S_OK, fresh().as<IPersistPropertyBag>()->Load(bag.Get(), nullptr));
    EXPECT_TRUE(same_lines({"Tag", "Hint"}, names_of({u"", bag->unread()})));
}

TEST_F(FormBagTest, WhatCannotBeLoadedIsKept) {
    FormObject settings{u"", {{u"Picture", samples::FormBlob(5)}}};
    settings.settings.push_back(
        {u"Font", std::make_shared<FormObject>(FormObject{u"{00000000-1111-2222-3333-444444444444}"})});
    const ComPtr<FormPropertyBag> bag(new FormPropertyBag(settings));
    fresh().as<IPersistPropertyBag>()->Load(bag.Get(), nullptr);
    EXPECT_TRUE(same_lines({"Picture", "Font"}, names_of({u"", bag->unread()})));
}

/// An object that saves itself by name, and whatever else it is told to.
class NamedObject final : public OwnObject<IPersistPropertyBag> {
public:
    NamedObject() : OwnObject({IID_IPersistPropertyBag}) {}

    std::function<HRESULT(IPropertyBag* bag)> save;
    STDMETHODIMP GetClassID(CLSID* class_id) override {
        *class_id = IID_IPropertyBag; // any will do
        return S_OK;
    }
    STDMETHODIMP InitNew() override { return S_OK; }
    STDMETHODIMP Load(IPropertyBag*, IErrorLog*) override { return S_OK; }
    STDMETHODIMP Save(IPropertyBag* bag, BOOL, BOOL) override { return save(bag); }
};

/// The bag by itself.
class FormBag : public testing::Test {
protected:
    HRESULT write(const wchar_t* name, const Variant& value) { return bag_->Write(name, value.argument()); }
    Variant read(const wchar_t* name, VARTYPE type = VT_EMPTY) {
        Variant value;
        value.raw().vt = type;
        result_ = bag_->Read(name, &value.raw(), nullptr);
        if (FAILED(result_))
            VariantInit(&value.raw());
        return value;
    }
    std::string again(const Variant& value) {
        EXPECT_EQ(S_OK, write(L"A", value));
        return read(L"A", value.type()).describe();
    }

    FormObject settings_;
    ComPtr<FormPropertyBag> bag_{new FormPropertyBag(settings_)};
    HRESULT result_ = S_OK;
};

TEST_F(FormBag, GivesBackValuesOfEveryPlainType) {
    for (const Variant& value :
         {Variant(true), Variant(false), Variant(std::int16_t{-7}), Variant(2147483647L), Variant(33.3F),
          Variant(std::numeric_limits<float>::denorm_min()), Variant(-0.1), Variant(L"\u20AC \"x\""),
          Variant(std::wstring(L"a\0b", 3)), Variant(L""), Variant::date(36000.25)})
        EXPECT_EQ(value.describe(), again(value));
}

TEST_F(FormBag, GivesTheTypeThatIsAskedFor) {
    write(L"A", Variant(-1L));
    EXPECT_EQ(Variant(true).describe(), read(L"A", VT_BOOL).describe());
    EXPECT_EQ(Variant(L"-1").describe(), read(L"A", VT_BSTR).describe());
    EXPECT_EQ(Variant(-1.0F).describe(), read(L"A", VT_R4).describe());
    write(L"A", Variant(100000L));
    read(L"A", VT_I2);
    EXPECT_EQ(DISP_E_OVERFLOW, result_);
    write(L"A", Variant(0.5));
    EXPECT_EQ(Variant(L"0.5").describe(), read(L"a", VT_BSTR).describe());
    read(L"A", VT_DISPATCH);
    EXPECT_TRUE(FAILED(result_));
}

TEST_F(FormBag, FollowsReferences) {
    Variant inner(L"inner");
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &inner.raw();
    EXPECT_EQ(S_OK, bag_->Write(L"A", &reference));
    EXPECT_EQ(L"inner", read(L"A").text());
    const ComPtr<IDispatch> made = font();
    Variant object(made.Get());
    reference.pvarVal = &object.raw();
    EXPECT_EQ(S_OK, bag_->Write(L"A", &reference));
    EXPECT_EQ(VT_DISPATCH, read(L"A").type());
    EXPECT_EQ(VT_UNKNOWN, read(L"A", VT_UNKNOWN).type());
}

TEST_F(FormBag, FollowsReferencesToNothing) {
    IUnknown* nothing = nullptr;
    VARIANT reference{};
    reference.ppunkVal = &nothing;
    for (const int type : {VT_UNKNOWN, VT_DISPATCH}) {
        reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
        write(L"A", Variant(1L));
        EXPECT_EQ(S_OK, bag_->Write(L"A", &reference));
        EXPECT_TRUE(settings_.settings.empty());
    }
    Variant inner(static_cast<IDispatch*>(nullptr));
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &inner.raw();
    EXPECT_EQ(S_OK, bag_->Write(L"A", &reference));
    reference.pvarVal = &reference;
    EXPECT_TRUE(FAILED(bag_->Write(L"A", &reference)));
    EXPECT_TRUE(settings_.settings.empty());
}

TEST_F(FormBag, RefusesWhatAFormCannotHold) {
    EXPECT_TRUE(FAILED(write(L"A", Variant(SafeArrayCreateVector(VT_UI1, 0, 4)))));
    EXPECT_TRUE(FAILED(write(L"A", Variant::null())));
    EXPECT_TRUE(FAILED(write(L"A", Variant(std::nan("")))));
    EXPECT_TRUE(FAILED(write(L"A", Variant(static_cast<IUnknown*>(bag_.Get())))));
    EXPECT_EQ(E_POINTER, bag_->Write(nullptr, Variant(1L).argument()));
    EXPECT_EQ(E_POINTER, bag_->Write(L"A", nullptr));
    EXPECT_EQ(E_POINTER, bag_->Read(L"A", nullptr, nullptr));
    EXPECT_TRUE(settings_.settings.empty());
}

TEST_F(FormBag, HoldsObjectsThatSaveThemselvesByName) {
    const ComPtr<NamedObject> object(new NamedObject);
    ComPtr<IPropertyBag> kept;
    object->save = [&](IPropertyBag* bag) {
        kept = bag;
        return bag->Write(L"Key", Variant(L"k").argument());
    };
    ASSERT_EQ(S_OK, write(L"A", Variant(static_cast<IUnknown*>(object.Get()))));
    const auto saved = std::get<std::shared_ptr<FormObject>>(settings_.settings.at(0).value);
    EXPECT_EQ(u"{55272A00-42CB-11CE-8135-00AA004BB851}", saved->class_id);
    EXPECT_TRUE(same_lines({"Key"}, names_of(*saved)));
    // The object has no business there any more.
    EXPECT_EQ(E_UNEXPECTED, kept->Write(L"Key", Variant(L"k").argument()));
    EXPECT_EQ(1U, saved->settings.size());
}

TEST_F(FormBag, RefusesObjectsThatHoldThemselvesOrFail) {
    const ComPtr<NamedObject> object(new NamedObject);
    const Variant itself(static_cast<IUnknown*>(object.Get()));
    int depth = 0;
    object->save = [&](IPropertyBag* bag) {
        ++depth;
        return bag->Write(L"Self", itself.argument());
    };
    EXPECT_TRUE(FAILED(write(L"A", itself)));
    EXPECT_EQ(static_cast<int>(samples::FormLimits::depth) - 1, depth);
    object->save = [](IPropertyBag*) { return E_ACCESSDENIED; };
    EXPECT_EQ(E_ACCESSDENIED, write(L"A", itself));
    EXPECT_TRUE(settings_.settings.empty());
}

TEST_F(FormBag, AsksForARecordOfObjectsThatAFormCannotHoldByName) {
    const ComPtr<NamedObject> object(new NamedObject);
    const Variant itself(static_cast<IUnknown*>(object.Get()));
    object->save = [](IPropertyBag*) { return E_NOTIMPL; };
    EXPECT_EQ(E_NOINTERFACE, write(L"A", itself));
    object->save = [](IPropertyBag* bag) {
        return bag->Write(L"Bytes", Variant(SafeArrayCreateVector(VT_UI1, 0, 4)).argument());
    };
    EXPECT_EQ(E_NOINTERFACE, write(L"A", itself));
}

TEST_F(FormBag, WritesEachNameOnceAndNothingForNoObject) {
    write(L"A", Variant(1L));
    write(L"a", Variant(2L));
    ASSERT_EQ(1U, settings_.settings.size());
    EXPECT_EQ(2, read(L"A").number());
    EXPECT_EQ(S_OK, write(L"A", Variant(static_cast<IDispatch*>(nullptr))));
    EXPECT_TRUE(settings_.settings.empty());
    read(L"A");
    EXPECT_EQ(E_INVALIDARG, result_);
}

TEST_F(FormBag, TouchesNothingWhenItIsClosed) {
    bag_->close();
    EXPECT_EQ(E_UNEXPECTED, write(L"A", Variant(1L)));
    read(L"A");
    EXPECT_EQ(E_UNEXPECTED, result_);
    EXPECT_TRUE(bag_->unread().empty());
}

} // namespace
} // namespace vellora::test
