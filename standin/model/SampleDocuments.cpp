#include "standin/model/SampleDocuments.h"

#include <algorithm>

namespace {

using Part = std::shared_ptr<PartDocument>;
using Assembly = std::shared_ptr<AssemblyDocument>;

// A color from 0..255 with the material values of a slightly glossy plastic.
MaterialValues Plastic(int red, int green, int blue, double transparency = 0) {
    return {red / 255.0, green / 255.0, blue / 255.0, 0.6, 1, 0.5, 0.4, transparency, 0};
}

// A face for every entry; the entry is the index of the feature that made it.
void AddFaces(PartDocument& part, const std::vector<std::size_t>& features) {
    for (const std::size_t feature : features)
        part.AddFace("Face " + std::to_string(part.Faces().size() + 1), feature);
}

void AddEdges(PartDocument& part, std::size_t count) {
    for (std::size_t i = 1; i <= count; ++i)
        part.AddEdge("Edge " + std::to_string(i));
}

void AddSketch(PartDocument& part, const std::string& name) {
    part.AddReference(EntityKind::Sketch, name, "ProfileFeature");
}

// What every part begins with.
void AddFirstFeatures(PartDocument& part) {
    part.AddReference(EntityKind::Folder, "Comments", "CommentsFolder");
    for (const char* name : {"Front Plane", "Top Plane", "Right Plane"})
        part.AddReference(EntityKind::Plane, name, "RefPlane");
    part.AddReference(EntityKind::Sketch, "Origin", "OriginProfileFeature");
}

Part MakeHousing(const SessionPtr& session) {
    Part part = PartDocument::Create(session, "Housing.SLDPRT");
    part->SetColor(Plastic(150, 166, 188));
    AddFirstFeatures(*part);
    AddSketch(*part, "Sketch 1");
    part->AddFeature("Base");
    AddSketch(*part, "Sketch 2");
    part->AddFeature("Pocket");
    part->AddReference(EntityKind::Folder, "Details", "FtrFolder");
    AddSketch(*part, "Sketch 3");
    part->AddFeature("Boss", Plastic(236, 154, 60));
    part->AddFeature("Rib");
    part->AddFeature("Bore", Plastic(92, 116, 210));
    part->AddFeature("Fillet");
    AddFaces(*part, {0, 0, 0, 0, 0, 0, 1, 1, 2, 2, 3, 4, 5, 5});
    part->FaceAt(2)->SetColor(Plastic(206, 58, 52));
    part->FaceAt(7)->SetColor(Plastic(74, 158, 92));
    part->FaceAt(9)->SetColor(MaterialValues{0.95, 0.85, 0.3, 0.4, 0.9, 0.9, 0.8, 0.25, 0.1});
    AddEdges(*part, 4);
    part->AddVertex("Vertex 1");
    part->AddVertex("Vertex 2");
    return part;
}

Part MakeSmallPart(const SessionPtr& session, const std::string& name, std::size_t faces,
                   const MaterialOverride& color) {
    Part part = PartDocument::Create(session, name + ".SLDPRT");
    part->SetColor(color);
    part->AddFeature(name + " body");
    AddFaces(*part, std::vector<std::size_t>(faces, 0));
    return part;
}

Assembly MakeSubAssembly(const SessionPtr& session) {
    Assembly latch = AssemblyDocument::Create(session, "Latch.SLDASM");
    latch->SetColor(Plastic(120, 124, 132));
    return latch;
}

void AddSampleComponents(const SessionPtr& session, SampleDocuments& documents) {
    const Part cover = MakeSmallPart(session, "Cover", 5, Plastic(96, 152, 176));
    const Part screw = MakeSmallPart(session, "Screw", 3, Plastic(188, 190, 194));
    const Part lever = MakeSmallPart(session, "Lever", 4, std::nullopt);
    const Assembly latch = MakeSubAssembly(session);
    documents.others = {cover, screw, lever, latch};
    Component& root = *documents.assembly->Root();
    root.Add("Housing-1", documents.part);
    root.Add("Cover-1", cover)->SetColor(Plastic(170, 210, 224, 0.4));
    root.Add("Screw-1", screw);
    root.Add("Screw-2", screw)->SetColor(Plastic(214, 176, 72));
    root.Add("Screw-3", screw);
    const auto subAssembly = root.Add("Latch-1", latch);
    subAssembly->Add("Lever-1", lever)->SetColor(Plastic(186, 74, 132));
    subAssembly->Add("Screw-4", screw);
    root.Add("Seal-1", nullptr); // lightweight: its model is not loaded
}

void AddGeneratedComponents(const SessionPtr& session, std::size_t count,
                            SampleDocuments& documents) {
    const Part model = MakeSmallPart(session, "Block", 6, Plastic(150, 166, 188));
    documents.others.push_back(model);
    for (std::size_t i = 1; i <= count; ++i)
        documents.assembly->Root()->Add("Block-" + std::to_string(i), model);
}

Part MakeGeneratedPart(const SessionPtr& session, std::size_t features, std::size_t faces) {
    Part part = PartDocument::Create(session, "Generated.SLDPRT");
    part->SetColor(Plastic(150, 166, 188));
    for (std::size_t i = 1; i <= features; ++i)
        part->AddFeature("Feature " + std::to_string(i));
    for (std::size_t i = 0; i < faces; ++i)
        part->AddFace("Face " + std::to_string(i + 1),
                      features ? std::optional(i % features) : std::nullopt);
    return part;
}

Part MakePart(const SessionPtr& session, const Scenario& scenario) {
    constexpr std::size_t usualFeatures = 6;
    constexpr std::size_t usualFaces = 14;
    Part part = scenario.faces || scenario.features
                    ? MakeGeneratedPart(session, scenario.features.value_or(usualFeatures),
                                        scenario.faces.value_or(usualFaces))
                    : MakeHousing(session);
    if (!scenario.bodyInPart)
        part->RemoveBody();
    return part;
}

void RemoveColors(Document& document) {
    document.SetColor(std::nullopt);
    for (const auto& feature : document.Features())
        feature->SetColor(std::nullopt);
}

void RemoveColors(const Component& parent) {
    for (const auto& child : parent.Children()) {
        child->SetColor(std::nullopt);
        RemoveColors(*child);
    }
}

void RemoveAllColors(const SampleDocuments& documents) {
    RemoveColors(*documents.part);
    for (const auto& face : documents.part->Faces())
        face->SetColor(std::nullopt);
    RemoveColors(*documents.assembly);
    for (const auto& document : documents.others)
        RemoveColors(*document);
    RemoveColors(*documents.assembly->Root());
}

} // namespace

SampleDocuments MakeSampleDocuments(const SessionPtr& session, const Scenario& scenario) {
    SampleDocuments documents;
    documents.part = MakePart(session, scenario);
    documents.assembly = AssemblyDocument::Create(session, "Enclosure.SLDASM");
    documents.assembly->SetColor(Plastic(160, 160, 168));
    documents.assembly->AddFeature("Mates", {}, "MateGroup");
    if (scenario.components)
        AddGeneratedComponents(session, *scenario.components, documents);
    else if (scenario.componentsInAssembly)
        AddSampleComponents(session, documents);
    if (!scenario.colorsSet)
        RemoveAllColors(documents);
    if (scenario.standardColors)
        for (Document* document : {static_cast<Document*>(documents.part.get()),
                                   static_cast<Document*>(documents.assembly.get())})
            document->Colors().Replace(GeneratedColors(*scenario.standardColors));
    if (!scenario.rootInAssembly)
        documents.assembly->RemoveRoot();
    return documents;
}
