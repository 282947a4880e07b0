VERSION 5.00
Begin VorlexLib.Vorlex Bar
   Height          =   600
   Width           =   3000
   Blocks          =   3
   Block.BarLeft(1)=   10
   Block.BarRight(1)=   40
   Block.BarTop(1) =   100
   Block.BarBottom(1)=   0
   Block.Color(1)  =   &H000000FF&
   Block.GradientStyle(1)=   9
   Block.GradientColor(1)=   &H0000FFFF&
   Block.Text(1)   =   "One"
   Block.Key(1)    =   "one"
   Block.BarLeft(2)=   60
   Block.BarRight(2)=   90
   Block.BarTop(2) =   100
   Block.BarBottom(2)=   0
   Block.Color(2)  =   &H00FF8000&
   Block.BrushStyle(2)=   5
   Block.RivetsStyle(2)=   1
   Block.Text(2)   =   "Two"
   Block.BarLeft(3)=   40
   Block.BarRight(3)=   60
   Block.BarTop(3) =   80
   Block.BarBottom(3)=   20
   Block.Clickable(3)=   0   'False
   Block.Text(3)   =   "!short time!"
   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   BorderStyle     =   0
   Caption         =   "bar"
End
