#include "Host/Ifc/IfcModel.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>
#include <chrono>
#include <iostream>
#include <map>

TEST(X, Y) {
  for (const char* n : {"SimpleWall","LargeBuilding","Duplex_A","building-architecture","pgsuper_materialproperties"}) {
    auto t=std::chrono::steady_clock::now();
    auto m = Host::IfcModel::Read(std::string("/work/shared/data/ifc/")+n+".ifc");
    auto d=std::chrono::steady_clock::now()-t;
    std::cout << n << " " << m.GetElementCount() << " ms " << std::chrono::duration<double>(d).count()*1000 << " size " << m.GetFile().GetText().size()<<"\n";
    for (auto& x: m.GetMessages().GetList()) std::cout << x.GetText() << "\n";
    std::map<int,std::pair<int,double>> sums;
    for (unsigned i=0;i<m.GetElementCount();++i) m.ForEachProperty(i,[&](auto, auto p){ auto v=m.ReadValue(p); auto& s=sums[(int)v.kind + 10*m.IsQuantity(p)]; s.first++; s.second+=v.value.GetIntOrNumVariantValue(); });
    for (auto& [k,s]:sums) std::cout << "  " << k << " " << s.first << " " << s.second << "\n";
    if (m.GetElementCount()) std::cout << m.GetClass(0) << "|" << m.GetName(0).ToUtf8() << "|" << m.GetTypeName(0).ToUtf8() <<"|" << m.GetStorey(0).ToUtf8() << "|" << m.GetTag(0).ToUtf8() << "\n";
  }
}
